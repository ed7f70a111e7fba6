#pragma once

#include "documento/Disposizione.h"
#include "preview/TastiGuide.h"
#include "preview/VistaFoglio.h"

#include <QObject>

class Frm1;
class GuideFoglio;
class QKeyEvent;
class QScrollBar;
struct PartiAnteprima;
struct StatoProgramma;

/// What the keys do on the sheet: Tab walks the elements as one reads them and chooses each alone,
/// with Ctrl beside the others; arrows shift what is chosen, with Ctrl they resize it; Enter and F2
/// ask for the properties. With nothing chosen the arrows scroll, and the paging keys always do.
/// F8 and what follows it are the guides'.
class TastiFoglio : public QObject, public AscoltaTasti
{
    Q_OBJECT
public:
    /// All outlive it.
    TastiFoglio(StatoProgramma &stato, Frm1 &finestra, PartiAnteprima &parti, GuideFoglio &guide);
    ~TastiFoglio() override;

    /// False when the key means nothing here.
    bool Preme(const QKeyEvent &tasto) override;
    bool Trattiene(const QKeyEvent &tasto) const override { return guide_.Trattiene(tasto); }
    void Perde() override { guide_.Perde(); }

signals:
    void RichiestaProprieta(Genere genere, int i);
    /// Element i has been moved or resized.
    void ElementoInMano(Genere genere, int i);

private:
    bool Percorre(bool avanti, bool aggiunge);
    bool Freccia(QPoint verso, Qt::KeyboardModifiers modi);
    bool Scorre(int tasto, Qt::KeyboardModifiers modi);
    bool ApreProprieta();
    bool TogliUltimo();
    void Mostra(const QString &esclusi);

    StatoProgramma &stato_;
    Frm1 &finestra_;
    PartiAnteprima &parti_;
    TastiGuide guide_;
    Disposizione disposizione_;
};
