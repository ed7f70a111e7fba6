#pragma once

#include "model/Modello.h"
#include "preview/ContorniCarta.h"
#include "preview/PulsantiStriscia.h"

#include <QList>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QWidget>

#include <memory>

struct StatoProgramma;
class AccessoFoglio;
class QAction;
class Cambiamento;
struct PartiAnteprima;
class AttrezziFoglio;
class ElementiFoglio;
class ManiSulFoglio;
class TastiFoglio;

/// The preview window: the sheet at scale 1:zoom with its rulers, scroll bars and zoom box. It
/// shows the open model, changes it under the mouse and tells the editor by signals; it keeps no
/// copy of it. Unless a name says otherwise, positions and sizes are mm of screen (mm of the sheet
/// / zoom).
///
/// Every member that takes an element's number i throws ErroreSistema 9 for a number outside the
/// table or without a control (CreaElemento makes it).
class Frm1 : public QWidget
{
    Q_OBJECT
public:
    /// Lays the sheet out at the zoom of the moment; later zoom changes leave its size and the
    /// scroll ranges as they are. stato must outlive the window.
    explicit Frm1(StatoProgramma &stato, QWidget *padre = nullptr);
    ~Frm1() override;

    /// Makes the control of element i (or shows it again), in front of the others. The caller then
    /// applies its settings and places it.
    void CreaElemento(Genere genere, int i);
    /// Hides the control of element i and the handle of its kind.
    void NascondiElemento(Genere genere, int i);
    void NascondiManiglie();
    void NascondiManiglia(Genere genere);

    /// Copies look and texts of element i from the model to its control.
    void Impostazioni(Genere genere, int i);
    void ImpostazioniCampo(int i) { Impostazioni(Genere::Campo, i); }
    void ImpostazioniCornice(int i) { Impostazioni(Genere::Cornice, i); }
    void ImpostazioniImmagine(int i) { Impostazioni(Genere::Immagine, i); }

    /// Places the control and the handle of its kind, once the document has put the element where
    /// its rules want it. What has moved it marks the model as changed: a step of the document.
    void Posiziona(Genere genere, int i);
    void PosizionaCampo(int i) { Posiziona(Genere::Campo, i); }
    void PosizionaCornice(int i) { Posiziona(Genere::Cornice, i); }
    void PosizionaImmagine(int i) { Posiziona(Genere::Immagine, i); }

    /// Builds the sheet: a control for every element, stacked by area, no handle in sight. From
    /// then on it follows the document by itself.
    void MostraModello();
    /// The sheet as it shows.
    QPixmap Ritratto();
    /// Scrolls until the element's corner can be seen.
    void PortaInVista(Chiave chiave);

    /// Where no sheet is, right of it: pixels of the screen, empty where the sheet fills the
    /// window.
    QRect AccantoAlFoglio() const;

    /// As if the sheet had been clicked there, or a field pointed at: the editor's page and entry,
    /// the handle, the strip.
    void Sceglie(Chiave chiave);
    /// Shows the handle of the kind on element i, ready to drag it.
    void Seleziona(Genere genere, int i);
    void SelezionaCampo(int i) { Seleziona(Genere::Campo, i); }
    void SelezionaCornice(int i) { Seleziona(Genere::Cornice, i); }
    void SelezionaImmagine(int i) { Seleziona(Genere::Immagine, i); }

    /// Restacks the kind in front of everything by area, the smallest on top.
    void PrimoPiano(Genere genere);
    void PrimoPianoCampi() { PrimoPiano(Genere::Campo); }
    void PrimoPianoCornici() { PrimoPiano(Genere::Cornice); }
    void PrimoPianoImmagini() { PrimoPiano(Genere::Immagine); }

    /// Restacks images, then frames, then fields: as an opening shows them.
    void ImpilaPerArea();
    /// Puts every visible handle back on its own element, after a walk that placed others too.
    void RiancoraManiglie();
    /// Gives the visible handles the hints that placing their own elements last would leave.
    void RinominaManiglie();

    /// One drag step of element i by the pointer offset (x, y) inside its handle.
    void Sposta(Genere genere, int i, Qt::MouseButtons bottoni, Qt::KeyboardModifiers tasti,
                double x, double y);
    void SpostaCampo(int i, Qt::MouseButtons b, Qt::KeyboardModifiers t, double x, double y)
    {
        Sposta(Genere::Campo, i, b, t, x, y);
    }
    void SpostaCornice(int i, Qt::MouseButtons b, Qt::KeyboardModifiers t, double x, double y)
    {
        Sposta(Genere::Cornice, i, b, t, x, y);
    }
    void SpostaImmagine(int i, Qt::MouseButtons b, Qt::KeyboardModifiers t, double x, double y)
    {
        Sposta(Genere::Immagine, i, b, t, x, y);
    }

    /// Pointer at (x, y) inside frame or image i: shows what an edge offers and, with the left
    /// button held, resizes. The first call with the button held begins, a release ends it.
    void RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y);
    void RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y);

    /// Clears the selection look of the fields and hides their handle.
    void Campineri();
    /// Redraws both rulers for the current zoom.
    void Righello();
    /// A command gets its button on the strip, at the end of the group, and its keys in this
    /// window.
    void AggiungeComando(QAction *comando, GruppoComandi gruppo);
    /// The commands of the sheet's own whose keys the editor's window takes too.
    QList<QAction *> ComandiDelFoglio() const;
    /// Writes the scale 1:zoom into the zoom box, which then acts as if it had been typed. False,
    /// and nothing happens, while a button is held on the sheet.
    bool ImpostaZoom(double zoom);
    /// The outlines of the paper; none until then.
    void MostraContorni(const ContorniCarta::Posti &posti);
    /// The strip says it until an element is in hand again, or others are chosen. Nothing that
    /// needs an answer.
    void Avverte(const QString &testo);
    /// What the strip says by Avverte goes, where it is still that text.
    void RitiraAvviso(const QString &testo);
    int ScorrimentoX() const; ///< value of ScrollX, mm of screen
    int ScorrimentoY() const; ///< value of ScrollY, mm of screen
    /// Size of the control of element i; a field's follows its text.
    QSizeF MisuraControllo(Genere genere, int i) const;

    void PulisceSfondo();
    /// PulisceSfondo, and the next DipingeSfondo reads the file anew.
    void DimenticaSfondo();
    /// How much of the picture behind the elements is seen, 0 to 1; 1 at first.
    void ImpostaOpacitaSfondo(double opacita);
    /// Paints the picture behind the elements, stretched into a rectangle in mm of the sheet; it
    /// then follows the zoom by itself. A file already decoded at that size is not read again. An
    /// empty rectangle shows nothing. Throws ErroreSistema 53 or 481 and leaves no background.
    void DipingeSfondo(const QString &percorso, const QRectF &millimetri);

    /// A simulated body row: a label for display only, at least as high as its text, which it clips
    /// at the side. It lets the mouse through to what lies below it.
    struct RigaSimulata
    {
        QRectF posto; ///< mm of screen
        QString font;
        double punti = 0; ///< size on the screen: the model's divided by the zoom
        bool grassetto = false;
        QString testo;

        bool operator==(const RigaSimulata &) const = default;
    };
    void TogliRigheSimulate();
    /// Shows the rows in front of the elements; those outside the sheet are left out.
    void AggiungeRigheSimulate(const QList<RigaSimulata> &righe);

signals:
    void ElementoPuntato(Genere genere, int i);    ///< the editor's combo of the kind goes to i
    void PaginaRichiesta(Genere genere);           ///< the editor shows the page of the kind
    void RichiestaProprieta(Genere genere, int i); ///< the property dialog is to open
    void SfondoDaRidisegnare();                    ///< the zoom has changed: background scan
    void RigheDaRidisegnare();                     ///< the zoom has changed: simulated rows
    void ChiusuraRichiesta(); ///< the user wants the preview closed; it stays until the editor acts

protected:
    void resizeEvent(QResizeEvent *evento) override;
    void moveEvent(QMoveEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;
    /// Escape gives up the gesture under way; without one, nothing is chosen any more.
    void keyPressEvent(QKeyEvent *evento) override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Form_Load();
    void Form_Resize();
    void ScrollX_Change();
    void ScrollY_Change();
    void TextZoom_KeyUp();
    void CollegaSegnali();
    void SegueDocumento(const Cambiamento &cambiamento);
    void AggiornaElemento(Chiave chiave);
    void MostraPuntatore(QPointF punto);
    void MostraSorvolo(QPointF punto);
    void MostraElemento(Genere genere, int i);

    StatoProgramma &stato_;
    std::unique_ptr<PartiAnteprima> parti_;
    std::unique_ptr<ElementiFoglio> elementi_;
    std::unique_ptr<AttrezziFoglio> attrezzi_;
    std::unique_ptr<ManiSulFoglio> mani_;
    std::unique_ptr<TastiFoglio> tasti_;
    std::unique_ptr<AccessoFoglio> accesso_;
    bool avvisato_ = false; ///< the strip says something that the pointer must not wipe away
    QPointF giroRuota_; // fractions of a mm that the wheel has turned and nothing has scrolled yet
};
