#include "editor/VistaCalibrazione.h"

#include "base/Unita.h"
#include "model/FoglioCarta.h"
#include "model/Modello.h"

#include <QApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor ColoreElementi(0x1f, 0x4f, 0xb5);
constexpr QColor ColorePunti(0xc0, 0x00, 0x30);
constexpr int RaggioPunto = 9; // of a point on the screen, device-independent pixels
constexpr double OltreIlFoglio =
    60; // mm that the scan can be moved beyond the sheet and still be seen
constexpr double ScalaMassima = 60; // pixels a millimetre

QRectF Carta()
{
    return {0, 0, FoglioCarta::Larghezza, FoglioCarta::Altezza};
}

std::size_t Numero(VistaCalibrazione::Mobile mobile)
{
    return mobile == VistaCalibrazione::Mobile::Primo ? 0 : 1;
}

} // namespace

VistaCalibrazione::VistaCalibrazione(QWidget *padre)
    : QGraphicsView(padre)
{
    setScene(new QGraphicsScene(this));
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    setTransformationAnchor(AnchorUnderMouse);
    setBackgroundBrush(palette().brush(QPalette::Mid));
    setFocusPolicy(Qt::StrongFocus);
    // Coming and going they would change what fits.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // The points are drawn over everything, in pixels.
    setViewportUpdateMode(FullViewportUpdate);
}

void VistaCalibrazione::Prepara(const QImage &immagine, const QSize &pixel, const Modello &modello)
{
    pixel_ = pixel;
    QPen bordo(Qt::black);
    bordo.setCosmetic(true);
    scene()->addRect(Carta(), QPen(Qt::NoPen), Qt::white);
    scansione_ = scene()->addPixmap(QPixmap::fromImage(immagine));
    scansione_->setTransformationMode(Qt::SmoothTransformation);
    scene()->addRect(Carta(), bordo);
    AggiungeElementi(modello);
}

void VistaCalibrazione::AggiungeElementi(const Modello &modello)
{
    QPen tratto(ColoreElementi);
    tratto.setCosmetic(true);
    for (const Genere genere : {Genere::Cornice, Genere::Immagine}) {
        for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
            const Elemento &elemento = modello.Di({genere, i});
            const QSizeF misura =
                genere == Genere::Cornice
                    ? QSizeF(modello.Cornici[i].Larghezza, modello.Cornici[i].Altezza)
                    : QSizeF(modello.Immagini[i].Larghezza, modello.Immagini[i].Altezza);
            if (!elemento.Nome.isEmpty()) {
                scene()->addRect(QRectF(QPointF(elemento.X, elemento.Y), misura), tratto);
            }
        }
    }
    constexpr int PixelDelCarattere = 50;
    for (int i = 1; i <= modello.UltimoSlot(Genere::Campo); ++i) {
        const Campo &campo = modello.Campi[i];
        if (campo.Nome.isEmpty()) {
            continue;
        }
        QFont font(campo.Font);
        font.setPixelSize(PixelDelCarattere);
        font.setBold(campo.Grassetto != 0);
        auto *testo = scene()->addSimpleText(campo.Testo, font);
        testo->setBrush(ColoreElementi);
        testo->setPos(campo.X, campo.Y);
        testo->setScale(campo.Dimensione * Unita::MillimetriPerPunto / PixelDelCarattere);
    }
}

void VistaCalibrazione::MostraScansione(const QRectF &posto)
{
    const bool altraMisura = posto.size() != posto_.size();
    posto_ = posto;
    const QSizeF pixel = scansione_->pixmap().size();
    scansione_->setTransform(QTransform(posto.width() / pixel.width(), 0, 0,
                                        posto.height() / pixel.height(), posto.x(), posto.y()));
    scansione_->setVisible(!posto.isEmpty());
    const QRectF tutto = Carta().united(posto).adjusted(-OltreIlFoglio, -OltreIlFoglio,
                                                        OltreIlFoglio, OltreIlFoglio);
    if (!scene()->sceneRect().contains(Carta().united(posto))) {
        scene()->setSceneRect(tutto); // a drag within it scrolls nothing
    }
    if (altraMisura && adattata_) {
        Adatta(); // moving it leaves everything under the pointer where it is
    }
    viewport()->update();
}

void VistaCalibrazione::AccettaPunti(bool accetta)
{
    accetta_ = accetta;
    if (!accetta && mobile_ != Mobile::Scansione) {
        Segnala(Mobile::Scansione);
    }
    viewport()->setCursor(accetta ? Qt::CrossCursor : Qt::ArrowCursor);
    viewport()->update();
}

void VistaCalibrazione::PrendeInMano(Mobile mobile)
{
    if (mobile != Mobile::Scansione && !punti_.at(Numero(mobile))) {
        Mette(Numero(mobile), SullaScansione(mapToScene(viewport()->rect().center())));
    }
    Segnala(mobile);
}

void VistaCalibrazione::Segnala(Mobile mobile)
{
    if (mobile_ != mobile) {
        mobile_ = mobile;
        emit PresaInMano(mobile);
    }
    viewport()->update();
}

void VistaCalibrazione::Adatta()
{
    constexpr double Bordo = 5; // mm
    fitInView(Carta().united(posto_).adjusted(-Bordo, -Bordo, Bordo, Bordo), Qt::KeepAspectRatio);
    adattata_ = true;
}

void VistaCalibrazione::Ingrandisce(double fattore)
{
    const double scala = transform().m11();
    const QSizeF vista = viewport()->size();
    const double minima = std::min(scala, std::min(vista.width() / sceneRect().width(),
                                                   vista.height() / sceneRect().height()));
    const double nuova = std::clamp(scala * fattore, minima, ScalaMassima);
    scale(nuova / scala, nuova / scala);
    adattata_ = false;
}

QPointF VistaCalibrazione::SullaScansione(QPointF foglio) const
{
    if (posto_.isEmpty()) {
        return {};
    }
    return {std::clamp((foglio.x() - posto_.x()) / posto_.width(), 0.0, 1.0),
            std::clamp((foglio.y() - posto_.y()) / posto_.height(), 0.0, 1.0)};
}

QPointF VistaCalibrazione::SulFoglio(QPointF parte) const
{
    return posto_.topLeft() + QPointF(parte.x() * posto_.width(), parte.y() * posto_.height());
}

std::optional<std::size_t> VistaCalibrazione::PuntoSotto(QPoint pixel) const
{
    for (std::size_t i = 0; accetta_ && i < punti_.size(); ++i) {
        if (punti_.at(i) &&
            (mapFromScene(SulFoglio(*punti_.at(i))) - pixel).manhattanLength() <= 2 * RaggioPunto) {
            return i;
        }
    }
    return std::nullopt;
}

void VistaCalibrazione::Mette(std::size_t punto, QPointF parte)
{
    punti_.at(punto) = parte;
    viewport()->update();
    if (!pressione_) {
        emit PuntiCambiati(); // while it is dragged the scan stays as it is under it
    }
}

void VistaCalibrazione::mousePressEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton) {
        return;
    }
    pressione_ = Pressione{evento->pos(), mapToScene(evento->pos()), PuntoSotto(evento->pos())};
    if (pressione_->Punto) {
        Segnala(*pressione_->Punto == 0 ? Mobile::Primo : Mobile::Secondo);
    }
}

void VistaCalibrazione::mouseMoveEvent(QMouseEvent *evento)
{
    if (!pressione_) {
        return;
    }
    if (!pressione_->Mossa && (evento->pos() - pressione_->Inizio).manhattanLength() <
                                  QApplication::startDragDistance()) {
        return;
    }
    const QPointF adesso = mapToScene(evento->pos());
    const QPointF scarto = adesso - pressione_->Ultimo;
    pressione_->Mossa = true;
    pressione_->Ultimo = adesso;
    if (pressione_->Punto) {
        Mette(*pressione_->Punto, SullaScansione(adesso));
    } else if (posto_.contains(adesso - scarto)) {
        Segnala(Mobile::Scansione);
        emit Trascinata(scarto);
    }
}

void VistaCalibrazione::mouseReleaseEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton || !pressione_) {
        return;
    }
    const Pressione pressione = *pressione_;
    pressione_.reset();
    if (pressione.Mossa && pressione.Punto) {
        emit PuntiCambiati();
    }
    const QPointF foglio = mapToScene(pressione.Inizio);
    if (pressione.Mossa || pressione.Punto || !accetta_ || !posto_.contains(foglio)) {
        return;
    }
    const std::size_t primoLibero = punti_[0] ? 1 : 0;
    if (!punti_.at(primoLibero)) {
        Mette(primoLibero, SullaScansione(foglio));
        Segnala(primoLibero == 0 ? Mobile::Primo : Mobile::Secondo);
    }
}

void VistaCalibrazione::mouseDoubleClickEvent(QMouseEvent *evento)
{
    mousePressEvent(evento); // two quick clicks are two clicks
}

void VistaCalibrazione::keyPressEvent(QKeyEvent *evento)
{
    const bool lungo = evento->modifiers() & Qt::ShiftModifier;
    switch (evento->key()) {
    case Qt::Key_Left:
        Muove({-1, 0}, lungo);
        break;
    case Qt::Key_Right:
        Muove({1, 0}, lungo);
        break;
    case Qt::Key_Up:
        Muove({0, -1}, lungo);
        break;
    case Qt::Key_Down:
        Muove({0, 1}, lungo);
        break;
    default:
        evento->ignore(); // Enter and Escape are the dialog's
    }
}

void VistaCalibrazione::Muove(QPointF passi, bool lungo)
{
    constexpr double PassoScansione = 0.1; // mm
    const QPointF quanto = passi * (lungo ? 10 : 1);
    if (mobile_ == Mobile::Scansione) {
        emit Trascinata(quanto * PassoScansione);
        return;
    }
    const std::size_t punto = Numero(mobile_);
    const QPointF parte = punti_.at(punto).value_or(QPointF());
    Mette(punto, {std::clamp(parte.x() + quanto.x() / pixel_.width(), 0.0, 1.0),
                  std::clamp(parte.y() + quanto.y() / pixel_.height(), 0.0, 1.0)});
}

void VistaCalibrazione::wheelEvent(QWheelEvent *evento)
{
    if (!(evento->modifiers() & Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(evento);
        return;
    }
    constexpr double PerScatto = 1.2;
    constexpr double Scatto = 120; // eighths of a degree
    Ingrandisce(std::pow(PerScatto, evento->angleDelta().y() / Scatto));
    evento->accept();
}

void VistaCalibrazione::resizeEvent(QResizeEvent *evento)
{
    QGraphicsView::resizeEvent(evento);
    if (adattata_ && scansione_ != nullptr) {
        Adatta();
    }
}

void VistaCalibrazione::drawForeground(QPainter *penna, const QRectF & /*rettangolo*/)
{
    penna->save();
    penna->resetTransform();
    for (std::size_t i = 0; accetta_ && i < punti_.size(); ++i) {
        if (!punti_.at(i)) {
            continue;
        }
        const QPointF centro = mapFromScene(SulFoglio(*punti_.at(i)));
        const bool inMano = mobile_ != Mobile::Scansione && Numero(mobile_) == i;
        penna->setPen(QPen(ColorePunti, inMano ? 3 : 1.5));
        penna->setBrush(Qt::NoBrush);
        penna->drawEllipse(centro, RaggioPunto, RaggioPunto);
        penna->setPen(QPen(ColorePunti, 1));
        penna->drawLine(centro - QPointF(2 * RaggioPunto, 0), centro + QPointF(2 * RaggioPunto, 0));
        penna->drawLine(centro - QPointF(0, 2 * RaggioPunto), centro + QPointF(0, 2 * RaggioPunto));
        penna->drawText(centro + QPointF(RaggioPunto + 2, -RaggioPunto), QString::number(i + 1));
    }
    penna->restore();
}
