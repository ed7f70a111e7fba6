#pragma once

#include <QTranslator>

/// Qt's own texts in Italian, those too that Qt's translation knows by a former place.
class TestiDiQt : public QTranslator
{
    Q_OBJECT
public:
    using QTranslator::QTranslator;

    QString translate(const char *contesto, const char *testo, const char *distinzione = nullptr,
                      int numero = -1) const override;
};
