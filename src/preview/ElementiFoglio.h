#pragma once

#include "model/Modello.h"
#include "preview/ContorniScelti.h"

#include <QObject>

#include <array>

struct StatoProgramma;
class GeometriaAnteprima;
class QGraphicsScene;

/// The controls on the sheet: one for each element of the model, the move handle of each kind, the
/// guide lines and the simulated rows. Takes their look and place from the model and stacks them.
///
/// Members that take an element's number throw ErroreSistema 9 for one outside the table or
/// without a control. Positions and sizes are mm of screen.
class ElementiFoglio : public QObject
{
    Q_OBJECT
public:
    /// The controls go into scena, which owns them and must outlive this object.
    ElementiFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                   QGraphicsScene &scena);

    void Crea(Genere genere, int i);
    void Nasconde(Genere genere, int i);
    void NascondeManiglia(Genere genere);

    void Imposta(Genere genere, int i);
    void Posiziona(Genere genere, int i);
    /// Only where the control and the handle of its kind stand, with the model's very numbers.
    void Ricolloca(Genere genere, int i);
    /// True when the element has a control, hidden or not.
    bool Creato(Genere genere, int i) const { return elementi_.at(Posto(genere))[i] != nullptr; }
    /// True when the element has a control, and that is not hidden.
    bool InVista(Genere genere, int i) const;
    void Seleziona(Genere genere, int i);
    void PrimoPiano(Genere genere);
    /// Behind every other element.
    void MandaInFondo(Genere genere, int i);

    void Campineri() { CampineriTranne(0); }
    /// Campineri for every field but i, whose handle is left alone too when it has it. The same
    /// as all of them followed by painting and selecting i, but nothing flickers.
    void CampineriTranne(int i);
    /// Paints field i as the one under the pointer.
    void Accende(int i);

    ControlloElemento &Elemento(Genere genere, int i) const;
    Maniglia &ManigliaDi(Genere genere) const;
    /// Puts the handle on the corner of the element's control.
    void AncoraManiglia(Genere genere, int i);
    /// After everything was placed again: handles in sight go back to their own elements.
    void RiancoraManiglie();
    /// After everything was placed again: the hints are those that placing the elements of the
    /// handles in sight last would leave, kind by kind. So each handle names its own, and a frame
    /// in hand takes its hint back from a field in hand, which writes onto the same handle.
    void RinominaManiglie();

    /// Puts something of a gesture on the sheet. It stays its owner's.
    void Aggiunge(Controllo &controllo);
    /// The outline of a chosen element.
    ContornoScelto *ContornoDi(Chiave chiave) const { return contorni_.Di(chiave); }

    void MostraGuide(QPointF angolo, const QColor &colore);
    void NascondeGuide();

    /// The visible handle at a point; null when none.
    Maniglia *ManigliaIn(QPointF punto) const;
    /// True when the point is on the control; one too small to be pointed at counts as a few
    /// pixels wide.
    bool Tocca(const ControlloElemento &controllo, QPointF punto) const;
    /// The topmost visible element at a point; null when none.
    ControlloElemento *ElementoIn(QPointF punto) const;

    void TogliRighe();
    void AggiungeRiga(const QRectF &posto, const TestoScalato::Aspetto &aspetto,
                      const QString &testo, double punti);

private:
    void ImpostaCampo(int i);
    void ImpostaCornice(int i);
    void ImpostaImmagine(int i);
    void CaricaImmagine(int i);
    QRectF PostoDa(Genere genere, int i) const;
    double Area(Genere genere, int i) const;
    /// The handle of the kind shows, ready to move, while an element is active.
    void SegueSelezione(Genere genere);
    void SegueScelti();
    void ScriveSuggerimentoManiglia(Genere genere, int i);
    void MandaDavanti(Controllo &controllo);
    ControlloTesto &ControlloTestoDi(Genere genere, int i) const;

    StatoProgramma &stato_;
    const GeometriaAnteprima &geometria_;
    QGraphicsScene &scena_;
    std::array<Tabella<ControlloElemento *>, Generi.size()> elementi_;
    ContorniScelti contorni_;
    QList<ControlloElemento *> creati_; // all of elementi_, for the hit test
    std::array<Maniglia *, Generi.size()> maniglie_{};
    LineaGuida *LineXX_ = nullptr;
    LineaGuida *LineYY_ = nullptr;
    QList<Riga *> righe_; // the first righeInUso_ are shown, the others wait to be used again
    int righeInUso_ = 0;
    int campoAcceso_ = 0;
    double cima_ = 0;  // stacking value of the frontmost element
    double fondo_ = 0; // and of the one at the back
};
