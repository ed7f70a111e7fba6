#pragma once

#include "model/Modello.h"
#include "preview/Foglio.h"
#include "preview/Ridimensionamento.h"

#include <QObject>
#include <QRectF>

#include <memory>
#include <optional>

class ControlloElemento;
class Controllo;
class ElementiFoglio;
class Maniglia;
class Passo;

/// What the mouse does on the sheet: pointing selects, handles drag, edges resize, a right or
/// double click on an element or its handle asks for the properties. The control under a press
/// keeps the mouse until the release. Only the left button changes the model: pressed while another
/// one is held it takes the gesture over, and its own release ends it whatever else is held.
class ManiSulFoglio : public QObject, public AscoltaMouse
{
    Q_OBJECT
public:
    ManiSulFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                  ElementiFoglio &elementi, Foglio &foglio);
    ~ManiSulFoglio() override;

    /// One drag step of element i by the pointer offset (x, y) inside its handle, mm of screen.
    /// Nothing unless the left button is held and the handle is ready to move.
    void Sposta(Genere genere, int i, Qt::MouseButtons bottoni, double x, double y);
    /// Pointer at (x, y) in frame or image i: shows what an edge offers and, with the left button
    /// held, resizes. The first call with the button held begins the resize, a release ends it.
    void RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y);
    void RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y);

    void Preme(const EventoMouse &evento) override;
    void Muove(const EventoMouse &evento) override;
    void Rilascia(const EventoMouse &evento) override;
    void PremeDueVolte(const EventoMouse &evento) override;
    void Interrompe() override;
    /// Gives up the drag or resize under way, from its press on: the element is as it was. False
    /// when there is none.
    bool Rinuncia();
    Spiegazione Suggerimento(QPointF punto) const override;

signals:
    void ElementoPuntato(Genere genere, int i);
    void PaginaRichiesta(Genere genere);
    void RichiestaProprieta(Genere genere, int i);
    /// The left button is held on the empty sheet, at a point in mm of screen.
    void FoglioPuntato(QPointF punto);
    /// Element i has been selected, moved or resized.
    void ElementoInMano(Genere genere, int i);

private:
    enum class Preso { Niente, Foglio, Maniglia, Elemento };
    /// What undo says it takes back.
    static constexpr QLatin1String VerboSposta{"sposta"};
    static constexpr QLatin1String VerboRidimensiona{"ridimensiona"};

    struct Cattura
    {
        Preso preso = Preso::Niente;
        Genere genere = Genere::Campo;
        int indice = 0;
        Qt::MouseButton bottone = Qt::NoButton;
        QPointF postoPrima = {}; ///< of the element at the press, mm of the sheet
        QSizeF misuraPrima = {}; ///< of a frame or image at the press, mm of the sheet
        bool trascinato = false; ///< a drag step has moved the element
        /// Where a handle was pressed for the second time, as long as the pointer stays there.
        std::optional<QPointF> secondaPressione = {};
    };
    /// The resize under way.
    struct Ridimensione
    {
        Presa presa = Presa::Nessuna;
        QPointF partenza;     ///< of the pointer
        QSizeF misura;        ///< of the element at the press
        QPointF scarto;       ///< from the pointer to the gripped edges
        bool premuto = false; ///< the left button is held: presa is decided
        bool avviata = false; ///< the pointer has moved since
    };

    Cattura Bersaglio(QPointF punto) const;
    Controllo *ControlloDi(const Cattura &bersaglio) const;
    QSizeF MisuraDi(Genere genere, int i) const;
    /// The step of the gesture under way; the first change begins it.
    Passo &PassoDi(Genere genere, int i, QLatin1String verbo);
    /// A step that no press has begun is over at once.
    void ConcludePassoIsolato();
    bool Ridimensionabile(Genere genere, int i) const;
    bool SulBordoSelezionato(Genere genere, QPointF punto) const;

    void AggiornaPuntatore(const Cattura &bersaglio);
    void MuoveSu(const Cattura &bersaglio, const EventoMouse &evento);
    void P1_MouseMove(const EventoMouse &evento);
    void CampoPuntato(int i);
    void ElementoSorvolato(Genere genere, int i, const EventoMouse &evento);
    void Fa_Click(Genere genere, int i);
    /// The end of the gesture under way: by a release at a point, or by an interruption.
    void ConcludeGesto(std::optional<QPointF> rilascio);
    void RilasciaManiglia(const Cattura &preso);
    void RilasciaElemento(const Cattura &preso, std::optional<QPointF> rilascio);
    void ConcludeRidimensione(const Cattura &preso, Presa presa);
    bool FermoDopoDueVolte(QPointF punto);
    void ChiedeProprieta(Genere genere, int i);
    void Ridimensiona(Genere genere, int i, Qt::MouseButtons bottoni, QPointF punto);
    void ApplicaMisura(Genere genere, int i, QSizeF misura);

    StatoProgramma &stato_;
    const GeometriaAnteprima &geometria_;
    ElementiFoglio &elementi_;
    Foglio &foglio_;
    Cattura preso_;
    std::unique_ptr<Passo> passo_;
    bool ultimoTrascinato_ = false; ///< the gesture before this one has dragged an element
    Ridimensione ridimensione_;
};
