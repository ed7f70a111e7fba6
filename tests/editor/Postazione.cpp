#include "Postazione.h"

#include "model/FileModello.h"
#include "preview/Controlli.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGraphicsView>
#include <QImage>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

namespace {

/// The pixel of a handle or an edge where it is gripped.
constexpr double PixelPresa = 1;
constexpr int MarginePunto = 4; // pixels

} // namespace

Postazione::Postazione()
{
    QLocale::setDefault(QLocale::c());
}

bool Postazione::ApreAttiva()
{
    Archivio.Scrive();
    return RiapreAttiva();
}

bool Postazione::RiapreAttiva()
{
    if (!ApreComeSta()) {
        return false;
    }
    Attiva(Finestra());
    return true;
}

QByteArray Postazione::DaSalvare() const
{
    return FileModello::Componi(Aperto(), QLocale::c());
}

void Postazione::Attiva(QWidget &finestra) const
{
    if (!RendeAttiva(finestra)) {
        qFatal("the window does not become active");
    }
}

void Postazione::Pagina(int pagina) const
{
    auto *pagine = Trova<QTabWidget>(Finestra(), "SSTab1");
    if (pagine->currentIndex() != pagina) {
        QTest::mouseClick(pagine->tabBar(), Qt::LeftButton, {},
                          pagine->tabBar()->tabRect(pagina).center());
    }
    if (pagine->currentIndex() != pagina) {
        qFatal("page %d does not show", pagina);
    }
}

QWidget *Postazione::Controllo_(const char *nome) const
{
    auto *controllo = Trova<QWidget>(Finestra(), nome);
    const auto *pagine = Trova<QTabWidget>(Finestra(), "SSTab1");
    for (int i = 0; i < pagine->count(); ++i) {
        if (pagine->widget(i)->isAncestorOf(controllo)) {
            Pagina(i);
        }
    }
    return controllo;
}

void Postazione::Preme(const char *controllo, Qt::MouseButton bottone) const
{
    auto *trovato = Controllo_(controllo);
    // The far left of an option or check box is the part that reacts.
    const QPoint punto(qMin(10, trovato->width() / 2), trovato->height() / 2);
    QTest::mouseClick(trovato, bottone, {}, punto);
}

void Postazione::Digita(const char *casella, const Parole &testo, bool invio) const
{
    auto *trovata = Controllo_(casella);
    Controlli::Digita(Finestra(), casella, testo);
    if (invio) {
        QTest::keyClick(trovata, Qt::Key_Return);
    }
}

void Postazione::SceglieVoce(Genere genere, int i) const
{
    auto *combo = qobject_cast<QComboBox *>(Controllo_(NomeCombo(genere)));
    while (combo->currentIndex() > i && combo->currentIndex() > 0) {
        QTest::keyClick(combo, Qt::Key_Up);
    }
    while (combo->currentIndex() < i && combo->currentIndex() < combo->count() - 1) {
        QTest::keyClick(combo, Qt::Key_Down);
    }
}

void Postazione::FuocoAlleVoci(Genere genere) const
{
    auto *combo = qobject_cast<QComboBox *>(Controllo_(NomeCombo(genere)));
    Trova<QWidget>(Finestra(), "Tipo")->setFocus();
    combo->setFocus(Qt::TabFocusReason);
}

void Postazione::Scorre(int x, int y) const
{
    Trova<QScrollBar>(Anteprima(), "ScrollX")->setValue(x);
    Trova<QScrollBar>(Anteprima(), "ScrollY")->setValue(y);
}

Controllo *Postazione::Elemento(Genere genere, int i) const
{
    static constexpr const char *Nomi[] = {"C1(%1)", "C2(%1)", "C3(%1)"};
    return dynamic_cast<Controllo *>(
        ElementoAnteprima(Anteprima(), QString::fromLatin1(Nomi[Posto(genere)]).arg(i)));
}

QPointF Postazione::Mezzo(Genere genere, int i) const
{
    const Controllo *elemento = Elemento(genere, i);
    return elemento == nullptr ? QPointF() : elemento->Posto().center() * Scala();
}

QPoint Postazione::Pixel(QPointF carta) const
{
    const auto *foglio = Trova<QGraphicsView>(Anteprima(), "P1");
    const QPoint punto =
        foglio->viewport()->mapTo(&Anteprima(), foglio->mapFromScene(carta / Scala()));
    // A pointer cannot leave the screen, and the test library takes the very corner for the middle.
    const QSize finestra = Anteprima().size();
    return {qBound(1, punto.x(), finestra.width() - 1),
            qBound(1, punto.y(), finestra.height() - 1)};
}

void Postazione::MostraPunto(QPointF carta) const
{
    const auto *foglio = Trova<QGraphicsView>(Anteprima(), "P1");
    const QRect visto = foglio->viewport()->visibleRegion().boundingRect().adjusted(
        MarginePunto, MarginePunto, -MarginePunto, -MarginePunto);
    const QPoint punto = foglio->mapFromScene(carta / Scala());
    const double pixelPerMillimetro = foglio->transform().m11();
    const auto porta = [&](const char *barra, int dove, int da, int a) {
        auto *scorre = Trova<QScrollBar>(Anteprima(), barra);
        if (dove < da || dove > a) {
            const int mezzo = (da + a) / 2;
            scorre->setValue(scorre->value() + qRound((dove - mezzo) / pixelPerMillimetro));
        }
    };
    porta("ScrollX", punto.x(), visto.left(), visto.right());
    porta("ScrollY", punto.y(), visto.top(), visto.bottom());
}

bool Postazione::SulFoglio(QPointF carta) const
{
    const auto *foglio = Trova<QGraphicsView>(Anteprima(), "P1");
    return foglio->viewport()->rect().contains(foglio->mapFromScene(carta / Scala()));
}

void Postazione::Sorvola(QPointF carta) const
{
    MostraPunto(carta);
    QTest::mouseMove(Anteprima().windowHandle(), Pixel(carta));
}

void Postazione::PremeFoglio(QPointF carta) const
{
    Sorvola(carta);
    QTest::mousePress(Anteprima().windowHandle(), Qt::LeftButton, {}, Pixel(carta));
}

void Postazione::RilasciaFoglio(QPointF carta) const
{
    QTest::mouseMove(Anteprima().windowHandle(), Pixel(carta));
    QTest::mouseRelease(Anteprima().windowHandle(), Qt::LeftButton, {}, Pixel(carta));
}

void Postazione::Clicca(QPointF carta, Qt::MouseButton bottone, Qt::KeyboardModifiers tasti) const
{
    Sorvola(carta);
    QTest::mouseClick(Anteprima().windowHandle(), bottone, tasti, Pixel(carta));
}

void Postazione::TastoSulFoglio(Qt::Key tasto, Qt::KeyboardModifiers modi) const
{
    Attiva(Anteprima());
    Trova<QGraphicsView>(Anteprima(), "P1")->setFocus();
    QTest::keyClick(Anteprima().windowHandle(), tasto, modi);
}

void Postazione::CliccaDueVolte(QPointF carta) const
{
    Sorvola(carta);
    QTest::mouseDClick(Anteprima().windowHandle(), Qt::LeftButton, {}, Pixel(carta));
}

void Postazione::Trascina(QPointF da, QPointF a) const
{
    PremeFoglio(da);
    QTest::mouseMove(Anteprima().windowHandle(), Pixel(da + (a - da) / 3));
    RilasciaFoglio(a);
}

const Controllo *Postazione::ManigliaDi(Genere genere) const
{
    static constexpr const char *Nomi[] = {"S1", "S2", "S3"};
    return dynamic_cast<Controllo *>(
        ElementoAnteprima(Anteprima(), QString::fromLatin1(Nomi[Posto(genere)])));
}

bool Postazione::TrascinaManiglia(Genere genere, QPointF di) const
{
    const Controllo *maniglia = ManigliaDi(genere);
    if (maniglia == nullptr || !maniglia->isVisible()) {
        return false;
    }
    const double pixel = PixelPresa / Trova<QGraphicsView>(Anteprima(), "P1")->transform().m11();
    const QPointF da = (maniglia->Posto().topLeft() + QPointF(pixel, pixel)) * Scala();
    if (!SulFoglio(da)) {
        return false;
    }
    Trascina(da, da + di);
    return true;
}

bool Postazione::TiraBordo(Genere genere, int i, Bordo bordo, QPointF di) const
{
    const QRectF posto = Elemento(genere, i)->Posto();
    const double pixel = PixelPresa / Trova<QGraphicsView>(Anteprima(), "P1")->transform().m11();
    QPointF da = posto.bottomRight() - QPointF(pixel, pixel);
    const Controllo *maniglia = ManigliaDi(genere);
    if (maniglia->isVisible() && maniglia->Posto().contains(da)) {
        // The edges of an element that its handle covers are gripped past the handle.
        da = maniglia->Posto().bottomRight() + QPointF(pixel, pixel);
    }
    if (bordo == Bordo::Destra) {
        da.setY(posto.center().y());
    } else if (bordo == Bordo::Basso) {
        da.setX(posto.center().x());
    }
    if (!SulFoglio(da * Scala())) {
        return false;
    }
    Trascina(da * Scala(), da * Scala() + di);
    return true;
}

void Postazione::ChiudeFinestra(QWidget &finestra) const
{
    QCloseEvent chiusura;
    QSpontaneKeyEvent::setSpontaneous(&chiusura);
    qApp->notify(&finestra, &chiusura); // sending would make it the program's own
    if (chiusura.isAccepted()) {
        finestra.hide();
    }
    QCoreApplication::processEvents(); // closing the preview is queued
}

void ScriveImmagine(const ArchivioDiProva &archivio, const Parole &nome, QSize pixel, QRgb colore)
{
    constexpr int PuntiPerMetro = 10000;
    QImage immagine(pixel, QImage::Format_RGB32);
    immagine.fill(colore);
    immagine.setDotsPerMeterX(PuntiPerMetro);
    immagine.setDotsPerMeterY(PuntiPerMetro);
    if (!immagine.save(archivio.Stato().CartellaModelli + nome)) {
        qFatal("cannot write a picture");
    }
}

const char *NomeCombo(Genere genere)
{
    static constexpr const char *Nomi[] = {"ComboCampi", "ComboCornici", "ComboImmagini"};
    return Nomi[Posto(genere)];
}

const char *NomeAggiungi(Genere genere)
{
    static constexpr const char *Nomi[] = {"Aggiungicampo", "AggiungiCornice", "AggiungiImmagine"};
    return Nomi[Posto(genere)];
}

const char *NomeModifica(Genere genere)
{
    static constexpr const char *Nomi[] = {"VariazioneCampo", "VariazioneCornice",
                                           "VariazioneImmagine"};
    return Nomi[Posto(genere)];
}

bool SceglieNelCombo(QWidget &dialogo, const char *nome, const Parole &testo)
{
    auto *combo = Trova<QComboBox>(dialogo, nome);
    const int voce = combo->findText(testo);
    if (voce < 0) {
        return false;
    }
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Home);
    while (combo->currentIndex() < voce) {
        QTest::keyClick(combo, Qt::Key_Down);
    }
    return true;
}
