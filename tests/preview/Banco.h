#pragma once

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"
#include "preview/Controlli.h"
#include "preview/Frm1.h"
#include "preview/GeometriaAnteprima.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <memory>

Q_DECLARE_METATYPE(Genere)

/// mm of screen of one device-independent pixel.
inline constexpr double MillimetriPerPixel = 25.4 / 96;

/// The pixel of a picture taken of a window that shows a point, whatever the scale of the screen.
inline QPoint PuntoFoto(const QImage &foto, QPointF millimetri)
{
    return (millimetri / MillimetriPerPixel * foto.devicePixelRatio()).toPoint();
}

inline QRgb ColoreFoto(const QImage &foto, QPointF millimetri)
{
    return foto.pixel(PuntoFoto(foto, millimetri)) & 0xffffff;
}

/// A preview window on the screen with a model of its own, worked with the mouse and the keys
/// through its window, as a user does. Points are mm of screen on the sheet.
class Banco
{
public:
    explicit Banco(double zoom = 1)
    {
        stato.zoom = zoom;
        stato.CartellaModelli = cartella.path() + u'/';
        frm = std::make_unique<Frm1>(stato);
        Ascolta();
        frm->show();
        if (!QTest::qWaitForWindowExposed(frm.get())) {
            qFatal("the window does not show");
        }
    }

    int Campo(const QString &nome, double x, double y, const QString &testo = QStringLiteral("abc"))
    {
        return Aggiunge(Genere::Campo, {x, y}, modello.Campi, [&](::Campo &campo) {
            campo.Nome = nome;
            campo.Testo = testo;
        });
    }

    int Cornice(double x, double y, double larghezza, double altezza, double bordo = 1)
    {
        return Aggiunge(Genere::Cornice, {x, y}, modello.Cornici, [&](::Cornice &cornice) {
            Misura(cornice, larghezza, altezza);
            cornice.Bordo = bordo;
        });
    }

    int Immagine(double x, double y, double larghezza, double altezza, const QString &file = {})
    {
        return Aggiunge(Genere::Immagine, {x, y}, modello.Immagini, [&](::Immagine &immagine) {
            Misura(immagine, larghezza, altezza);
            immagine.Nome = file;
        });
    }

    /// An element of the kind; a frame or image is 30 x 20 mm.
    int Crea(Genere genere, QPointF angolo)
    {
        switch (genere) {
        case Genere::Campo:
            return Campo(QStringLiteral("uno"), angolo.x(), angolo.y());
        case Genere::Cornice:
            return Cornice(angolo.x(), angolo.y(), 30, 20);
        case Genere::Immagine:
            break;
        }
        return Immagine(angolo.x(), angolo.y(), 30, 20);
    }

    /// Changes records and row area before the test begins: no sign is noted, nothing is modified.
    template <typename Azione>
    void Cambia(Azione &&azione)
    {
        Prepara([&](Passo &) {
            Modifica(stato, azione);
            return 0;
        });
    }

    /// Puts an element where a drag leaves it: not rounded before it is placed the next time.
    void Lascia(Chiave chiave, QPointF posto)
    {
        Prepara([&](Passo &passo) {
            passo.Trascina(chiave, posto);
            return 0;
        });
    }

    template <typename Elemento = Controllo>
    Elemento *Controllo_(const QString &nome) const
    {
        auto *trovato = dynamic_cast<Elemento *>(ElementoAnteprima(*frm, nome));
        if (trovato == nullptr) {
            qFatal("no control %s", qPrintable(nome));
        }
        return trovato;
    }
    ControlloTesto *C1(int i) const
    {
        return Controllo_<ControlloTesto>(QStringLiteral("C1(%1)").arg(i));
    }
    ControlloTesto *C2(int i) const
    {
        return Controllo_<ControlloTesto>(QStringLiteral("C2(%1)").arg(i));
    }
    RiquadroImmagine *C3(int i) const
    {
        return Controllo_<RiquadroImmagine>(QStringLiteral("C3(%1)").arg(i));
    }
    Maniglia *S(int k) const { return Controllo_<Maniglia>(QStringLiteral("S%1").arg(k)); }

    /// Number of the element whose handle S1, S2 or S3 is in sight; 0: none.
    int InMano(int k) const { return S(k)->isVisible() ? S(k)->Tag.toInt() : 0; }
    bool GuideInVista() const
    {
        return Controllo_<LineaGuida>(QStringLiteral("LineXX"))->isVisible() ||
               Controllo_<LineaGuida>(QStringLiteral("LineYY"))->isVisible();
    }
    int Volte(const char *segnale) const
    {
        return static_cast<int>(segnali.count(QString::fromLatin1(segnale)));
    }

    QWidget *Vista() const { return Trova<QGraphicsView>(*frm, "P1")->viewport(); }

    /// The middle of the pixel nearest to the point: what the mouse can really hit.
    QPointF Centro(QPointF punto) const { return QPointF(Pixel(punto)) * MillimetriPerPixel; }
    QPoint Pixel(QPointF punto) const { return (punto / MillimetriPerPixel).toPoint(); }

    void Muove(QPointF punto) { QTest::mouseMove(frm->windowHandle(), Locale(punto)); }
    void Preme(QPointF punto, Qt::MouseButton bottone = Qt::LeftButton,
               Qt::KeyboardModifiers tasti = {})
    {
        QTest::mousePress(frm->windowHandle(), bottone, tasti, Locale(punto));
    }
    void Rilascia(QPointF punto, Qt::MouseButton bottone = Qt::LeftButton,
                  Qt::KeyboardModifiers tasti = {})
    {
        QTest::mouseRelease(frm->windowHandle(), bottone, tasti, Locale(punto));
    }
    void Clicca(QPointF punto, Qt::MouseButton bottone = Qt::LeftButton,
                Qt::KeyboardModifiers tasti = {})
    {
        Muove(punto);
        Preme(punto, bottone, tasti);
        Rilascia(punto, bottone, tasti);
    }
    void CliccaConCtrl(QPointF punto) { Clicca(punto, Qt::LeftButton, Qt::ControlModifier); }
    void CliccaDueVolte(QPointF punto)
    {
        Muove(punto);
        QTest::mouseDClick(frm->windowHandle(), Qt::LeftButton, {}, Locale(punto));
    }
    /// A mouse event of the left button straight to the sheet: QTest keeps its own presses apart
    /// from double clicks.
    void Manda(QEvent::Type tipo, QPointF punto, Qt::MouseButtons tenuti) const
    {
        const QPoint pixel = Pixel(punto);
        const Qt::MouseButton bottone = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent evento(tipo, pixel, Vista()->mapToGlobal(pixel), bottone, tenuti,
                           Qt::NoModifier);
        QApplication::sendEvent(Vista(), &evento);
    }
    /// Press at da, move through a few points to a, release there.
    void Trascina(QPointF da, QPointF a, Qt::KeyboardModifiers tasti = {})
    {
        Muove(da);
        Preme(da, Qt::LeftButton, tasti);
        Muove(da + (a - da) / 3);
        Muove(a);
        Rilascia(a, Qt::LeftButton, tasti);
    }
    /// Drags the visible handle so that it ends under the pixel nearest to a.
    void TrascinaManiglia(int k, QPointF a)
    {
        Trascina(S(k)->Posto().topLeft() + QPointF(1, 1), a);
    }

    void Zoom(const QString &testo)
    {
        auto *TextZoom = Trova<QLineEdit>(*frm, "TextZoom");
        TextZoom->selectAll();
        TextZoom->insert(testo);
        QTest::keyRelease(TextZoom, Qt::Key_End);
    }

    QString Striscia() const { return Trova<QLabel>(*frm, "Text1")->text(); }
    /// Makes the sheet take the keys.
    void FuocoAlFoglio() const { Trova<QGraphicsView>(*frm, "P1")->setFocus(); }
    /// A key, to whatever of the window has the focus.
    void Tasto(Qt::Key tasto, Qt::KeyboardModifiers modi = {}) const
    {
        QTest::keyClick(frm->windowHandle(), tasto, modi);
    }
    /// The guides on the sheet, "X 40" and "Y 60", mm of screen.
    QStringList Guide() const
    {
        QStringList guide;
        const auto voci = Trova<QGraphicsView>(*frm, "P1")->scene()->items();
        for (QGraphicsItem *voce : voci) {
            const auto *linea = dynamic_cast<LineaGuida *>(voce);
            if (linea != nullptr && linea->isVisible() &&
                linea->objectName().startsWith(QStringLiteral("Guida"))) {
                const QRectF &posto = linea->Posto();
                guide.append(posto.width() == 0 ? QStringLiteral("X %1").arg(posto.left())
                                                : QStringLiteral("Y %1").arg(posto.top()));
            }
        }
        guide.sort();
        return guide;
    }

    QImage Fotografia() const
    {
        return Vista()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    QTemporaryDir cartella;
    StatoProgramma stato;
    const Modello &modello = stato.Aperto();
    QStringList segnali; ///< "ElementoPuntato 0 3", "Variato" ... in their order
    std::unique_ptr<Frm1> frm;

private:
    /// A change that a test begins with: nobody is told, and there is nothing to undo.
    template <typename Azione>
    int Prepara(Azione &&azione)
    {
        muto_ = true;
        int i = 0;
        {
            Passo passo(stato.documento, {});
            i = azione(passo);
        }
        stato.documento.DimenticaStoria();
        stato.documento.Salvato();
        muto_ = false;
        return i;
    }

    template <typename Elementi, typename Azione>
    int Aggiunge(Genere genere, QPointF posto, const Elementi &elementi, Azione &&completa)
    {
        return Prepara([&](Passo &passo) {
            const int i = passo.Aggiunge(genere, posto, QTime(0, 5, 7)).indice;
            auto elemento = elementi[i];
            completa(elemento);
            passo.Scrive(i, elemento);
            return i;
        });
    }

    template <typename Riquadro>
    static void Misura(Riquadro &riquadro, double larghezza, double altezza)
    {
        riquadro.Larghezza = larghezza;
        riquadro.Altezza = altezza;
    }

    void Annota(const QString &segnale)
    {
        if (!muto_) {
            segnali.append(segnale);
        }
    }

    QPoint Locale(QPointF punto) const { return Vista()->mapTo(frm.get(), Pixel(punto)); }

    void Ascolta()
    {
        const auto annota = [this](const char *nome) {
            return [this, nome] { Annota(QString::fromLatin1(nome)); };
        };
        const auto annotaElemento = [this](const char *nome) {
            return [this, nome](Genere genere, int i) {
                Annota(QStringLiteral("%1 %2 %3")
                           .arg(QString::fromLatin1(nome))
                           .arg(static_cast<int>(genere))
                           .arg(i));
            };
        };
        Frm1 *f = frm.get();
        QObject::connect(f, &Frm1::ElementoPuntato, f, annotaElemento("ElementoPuntato"));
        QObject::connect(f, &Frm1::RichiestaProprieta, f, annotaElemento("RichiestaProprieta"));
        QObject::connect(f, &Frm1::PaginaRichiesta, f, [this](Genere genere) {
            Annota(QStringLiteral("PaginaRichiesta %1").arg(static_cast<int>(genere)));
        });
        const Documento *documento = &stato.documento;
        QObject::connect(documento, &Documento::Cambiato, f, [this](const Cambiamento &) {
            if (stato.documento.Variato()) {
                Annota(QStringLiteral("Variato"));
            }
        });
        QObject::connect(f, &Frm1::SfondoDaRidisegnare, f, annota("SfondoDaRidisegnare"));
        QObject::connect(f, &Frm1::RigheDaRidisegnare, f, annota("RigheDaRidisegnare"));
        QObject::connect(documento, &Documento::ModificaConclusa, f, annota("ModificaConclusa"));
        QObject::connect(f, &Frm1::ChiusuraRichiesta, f, annota("ChiusuraRichiesta"));
    }

    bool muto_ = false;
};

inline void RigheDiZoom()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QTest::addRow("zoom %g", zoom) << zoom;
    }
}

inline void RigheDiGenere()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
    QTest::newRow("immagine") << Genere::Immagine;
}

/// A row field whose handle is in sight, with the pointer on the handle.
inline QPointF SullaManigliaDiRiga(Banco &banco)
{
    banco.Cambia([](Modello &modello) { modello.Righe.yInizio = 40; });
    banco.Campo(QStringLiteral("R_Descr"), 60, 40);
    banco.Muove({63, 42});
    banco.Muove({61, 41});
    banco.segnali.clear();
    return {61, 41};
}
