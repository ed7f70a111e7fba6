#include "preview/Controlli.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"
#include "preview/Tratti.h"

#include <QFileInfo>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>

namespace {

/// Far beyond the sheet, and near enough for Qt to compute with.
constexpr double LimiteMillimetri = 5000;
/// Rounding to the pixel grid reaches out of a control by less than this, on any screen.
constexpr double MargineGriglia = 0.3;
/// A picture larger than this on the screen is stretched rather than decoded larger.
constexpr int LatoMassimo = 3000;
/// Of the simulated rows: paler than the elements, and still to be read.
constexpr QColor ColoreRighe(0x66, 0x66, 0x66);

double Entro(double valore)
{
    return std::isnan(valore) ? 0 : std::clamp(valore, -LimiteMillimetri, LimiteMillimetri);
}

QRectF Entro(const QRectF &rettangolo)
{
    return {QPointF(Entro(rettangolo.left()), Entro(rettangolo.top())),
            QPointF(Entro(rettangolo.right()), Entro(rettangolo.bottom()))};
}

QString NomeControllo(Genere genere, int indice)
{
    return QStringLiteral("C%1(%2)").arg(Posto(genere) + 1).arg(indice);
}

} // namespace

Controllo::Controllo(const QString &nome)
{
    setObjectName(nome);
    setAcceptedMouseButtons(Qt::NoButton); // the sheet hands out the mouse by itself
    setVisible(false);
}

void Controllo::Colloca(const QRectF &posto)
{
    if (posto == posto_) {
        return;
    }
    const bool altraMisura = posto.size() != posto_.size();
    posto_ = posto;
    if (altraMisura) {
        AggiornaIngombro();
        update();
    }
    setPos(Entro(posto.left()), Entro(posto.top()));
}

void Controllo::ImpostaSuggerimento(const QString &testo)
{
    if (testo != toolTip()) {
        setToolTip(testo);
    }
}

void Controllo::AggiornaIngombro()
{
    const QRectF dipinto =
        Entro(Dipinto()).adjusted(-MargineGriglia, -MargineGriglia, MargineGriglia, MargineGriglia);
    if (dipinto != ingombro_) {
        prepareGeometryChange();
        ingombro_ = dipinto;
    }
}

ControlloElemento::ControlloElemento(Genere g, int i)
    : Controllo(NomeControllo(g, i))
    , genere(g)
    , indice(i)
{
}

void ControlloElemento::ImpostaBordo(bool bordo, const QColor &colore)
{
    if (bordo != bordo_ || colore != coloreBordo_) {
        bordo_ = bordo;
        coloreBordo_ = colore;
        update();
    }
}

ControlloTesto::ControlloTesto(Genere g, int i)
    : ControlloElemento(g, i)
{
    setFlag(ItemUsesExtendedStyleOption); // exposedRect
}

void ControlloTesto::ImpostaTesto(const TestoScalato::Aspetto &aspetto, const QString &testo,
                                  double punti, QPointF rientro)
{
    const bool altroTesto = testo_.Imposta(aspetto, testo);
    if (!altroTesto && punti == punti_ && rientro == rientro_) {
        return;
    }
    punti_ = punti;
    rientro_ = rientro;
    AggiornaIngombro();
    update();
}

void ControlloTesto::ImpostaColore(const QColor &colore)
{
    if (colore != colore_) {
        colore_ = colore;
        update();
    }
}

QRectF ControlloTesto::Dipinto() const
{
    const QSizeF misura = MisuraTesto();
    // Slanted or swash letters reach out of the box of their text.
    const double sporgenza = misura.height() / 2;
    const QRectF scritta = QRectF(rientro_, misura).adjusted(-sporgenza, 0, sporgenza, 0);
    return Locale().united(scritta);
}

void ControlloTesto::paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *)
{
    testo_.Disegna(*penna, rientro_, punti_, colore_, opzioni->exposedRect);
    if (Bordo()) {
        Tratti(*penna).Riquadro(Entro(Locale()), ColoreBordo());
    }
}

RiquadroImmagine::RiquadroImmagine(int i)
    : ControlloElemento(Genere::Immagine, i)
{
}

void RiquadroImmagine::Carica(const QString &percorso)
{
    if (percorso != origine_.percorso) {
        origine_ = {percorso, {}, 0};
        tentata_ = {};
        figura_ = {};
        update();
    }
    const QFileInfo file(percorso);
    if (!file.isFile()) {
        return;
    }
    const Origine origine{percorso, file.lastModified(), file.size()};
    if (!(origine == origine_)) {
        origine_ = origine;
        update();
    }
}

void RiquadroImmagine::ImpostaElastico(bool elastico)
{
    if (elastico_ != elastico) {
        elastico_ = elastico;
        update();
    }
}

void RiquadroImmagine::Decodifica(QSize pixel)
{
    if (origine_.percorso.isEmpty() || (origine_ == tentata_ && pixel == pixelTentati_)) {
        return;
    }
    tentata_ = origine_;
    pixelTentati_ = pixel;
    try {
        QImage figura = Immagini::CaricaScalata(origine_.percorso, pixel);
        figura.convertTo(figura.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
        figura_ = figura;
    } catch (const ErroreSistema &) {
        // A picture that cannot be loaded is skipped without a message: the box keeps what it has.
    }
}

void RiquadroImmagine::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Tratti tratti(*penna);
    const QRectF posto = tratti.DiMisuraFissa(Entro(Locale()));
    const QSize pixel = (posto.size() * penna->device()->devicePixelRatioF())
                            .toSize()
                            .boundedTo(QSize(LatoMassimo, LatoMassimo))
                            .expandedTo(QSize(1, 1));
    if (!elastico_ || figura_.isNull()) {
        Decodifica(pixel);
    }
    if (!figura_.isNull()) {
        penna->save();
        penna->setWorldTransform(QTransform());
        penna->setRenderHint(QPainter::SmoothPixmapTransform, figura_.size() != pixel);
        penna->drawImage(posto, figura_);
        penna->restore();
    }
    if (Bordo()) {
        tratti.RiquadroDiMisuraFissa(Entro(Locale()), ColoreBordo());
    }
}

Riga::Riga(int numero)
    : Controllo(QStringLiteral("Riga(%1)").arg(numero))
{
    setFlag(ItemUsesExtendedStyleOption);
}

void Riga::Imposta(const QRectF &posto, const TestoScalato::Aspetto &aspetto, const QString &testo,
                   double punti)
{
    if (testo_.Imposta(aspetto, testo) || punti != punti_) {
        punti_ = punti;
        update();
    }
    // A row lower than its text would show the blank above the sign and nothing of it.
    const double altezza = std::max(posto.height(), testo_.Misura(punti).height());
    Colloca(QRectF(posto.topLeft(), QSizeF(posto.width(), altezza)));
}

void Riga::paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *)
{
    const QRectF visibile = opzioni->exposedRect.intersected(Entro(Locale()));
    penna->save();
    penna->setClipRect(visibile, Qt::IntersectClip);
    testo_.Disegna(*penna, {0, 0}, punti_, ColoreRighe, visibile);
    penna->restore();
}

Maniglia::Maniglia(const QString &nome, const QColor &sfondo)
    : Controllo(nome)
    , sfondo_(sfondo)
{
}

void Maniglia::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Tratti tratti(*penna);
    const QRectF q = Locale();
    tratti.Pieno(q, sfondo_);
    const QRectF croce = q.adjusted(q.width() / 4, q.height() / 4, -q.width() / 4, -q.height() / 4);
    tratti.Orizzontale(croce.center().y(), croce.left(), croce.right(), Qt::white);
    tratti.Verticale(croce.center().x(), croce.top(), croce.bottom(), Qt::white);
}

LineaGuida::LineaGuida(const QString &nome)
    : Controllo(nome)
{
}

void LineaGuida::Mostra(QPointF da, QPointF a, const QColor &colore)
{
    colore_ = colore;
    Colloca(QRectF(da, a));
    setVisible(true);
}

void LineaGuida::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    const Tratti tratti(*penna);
    if (Locale().width() > 0) {
        tratti.Orizzontale(0, 0, Locale().width(), colore_);
    } else {
        tratti.Verticale(0, 0, Locale().height(), colore_);
    }
}
