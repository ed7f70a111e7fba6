#pragma once

#include "controllo/Condizioni.h"
#include "preview/ContorniCarta.h"

#include <QList>
#include <QObject>

class Frm1;
class QPageLayout;
class QWidget;

/// Asks for the default printer's page, once and only when the user sees the windows, and has the
/// preview outline it.
class CartaDellaStampante : public QObject
{
    Q_OBJECT
public:
    /// Both windows outlive it.
    CartaDellaStampante(Frm1 &anteprima, QWidget &editore);

    /// What a printer with this page has outlined: the origin of a model is the corner that the
    /// printer reaches, and a sheet of A4 begins where the printer's own paper does.
    static ContorniCarta::Posti Contorni(const QPageLayout &pagina);
    /// What a check knows of the paper; nothing without a printer.
    static std::optional<FoglioStampante> Foglio(const ContorniCarta::Posti &posti);
    /// Without a printer a sheet of A4 begins at the origin.
    static ContorniCarta::Posti SoloA4();

signals:
    void Dipinte();
    /// The print system has been asked, once.
    void Chiesta(const std::optional<FoglioStampante> &foglio);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Chiede();

    Frm1 &anteprima_;
    QList<QObject *> daDipingere_; ///< the windows that have not been on the screen yet
};
