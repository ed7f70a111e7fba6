#pragma once

#include "print/Avanzamento.h"

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

/// Lets the user wait for a sheet that is being painted: what lasts longer than a second shows how
/// far it is and can be given up. Until then painting runs no event; from then on the windows are
/// painted, but nothing in them can be worked.
class AttesaDiStampa
{
public:
    static constexpr int Pazienza = 1000; ///< ms

    /// testo says what is waited for. pazienza: ms until it is shown. padre may be null.
    AttesaDiStampa(QWidget *padre, const QString &testo, int pazienza = Pazienza);
    ~AttesaDiStampa();
    Q_DISABLE_COPY_MOVE(AttesaDiStampa)

    /// An Avanzamento. Throws StampaAnnullata.
    void Avanza(double parte);
    /// An AttesaDelSistema: the windows are painted meanwhile, and what lasts longer than a second
    /// can be given up. Painting is not under way then.
    void Aspetta(const LavoroDelSistema &lavoro);

private:
    QWidget *padre_;
    QString testo_;
    int pazienza_;
    QElapsedTimer trascorso_;
    std::unique_ptr<QProgressDialog> riquadro_;
};
