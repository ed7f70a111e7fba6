#include "EditoreDiProva.h"
#include "preview/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Tempi.h"

#include <QCheckBox>
#include <QGraphicsView>

namespace {

constexpr double PixelPerMillimetro = 96 / 25.4;

/// An editor with one wide row field and the rows simulated from 20 mm to 60 mm.
struct ConRighe
{
    EditoreDiProva prova;

    explicit ConRighe(double interlinea)
    {
        const int n = prova.Archivio.AggiungeCampo(QStringLiteral("R_Descr"), 20, 20);
        Campo &campo = prova.Archivio.DaAprire().Campi[n];
        campo.Font = QStringLiteral("Arial");
        campo.Dimensione = 10;
        campo.Testo = QString(40, u'x');
        prova.Archivio.DaAprire().Righe = {20, 60, interlinea, 4, QString()};
        if (!prova.Apre()) {
            qFatal("the model does not open");
        }
    }

    void Simula() { Trova<QCheckBox>(*prova.Editor, "OptSimuloRighe")->click(); }
    QWidget *Foglio() const
    {
        return Trova<QGraphicsView>(*prova.Editor->Anteprima(), "P1")->viewport();
    }
};

/// Lines of pixels between two heights, in mm, in which anything differs.
int LineeDiverse(const QImage &prima, const QImage &dopo, double da, double a)
{
    int diverse = 0;
    const double scala = PixelPerMillimetro * prima.devicePixelRatio();
    for (int y = qRound(da * scala); y < qRound(a * scala); ++y) {
        for (int x = 0; x < prima.width(); ++x) {
            if (prima.pixel(x, y) != dopo.pixel(x, y)) {
                ++diverse;
                break;
            }
        }
    }
    return diverse;
}

} // namespace

/// Rows simulated closer than their text is high, as they are painted.
class tst_RigheStrette : public QObject
{
    Q_OBJECT
private slots:
    void SiVedono_data();
    void SiVedono();
    void SpariteSenzaLaSpunta();
    void TrascinareRestaPronto();
    void UnPassoSenzaAltreRigheNonLeTocca();
};

void tst_RigheStrette::SiVedono_data()
{
    QTest::addColumn<double>("interlinea");
    for (const double interlinea : {2.0, 1.0, 0.5, 0.49, 0.3, 0.1, 0.02, 0.0001}) {
        QTest::addRow("%g mm", interlinea) << interlinea;
    }
}

void tst_RigheStrette::SiVedono()
{
    QFETCH(const double, interlinea);
    ConRighe righe(interlinea);
    const QImage prima = righe.Foglio()->grab().toImage();
    righe.Simula();
    const QImage dopo = righe.Foglio()->grab().toImage();
    // A line of Arial 10 is 4 mm high and its sign nearly half of that: no line of pixels between
    // them stays white where the spacing is smaller.
    const int linee = LineeDiverse(prima, dopo, 25, 59);
    QVERIFY2(linee >= (interlinea > 1 ? 60 : 126), qPrintable(QString::number(linee)));
    QCOMPARE(LineeDiverse(prima, dopo, 0, 20), 0);
    QCOMPARE(LineeDiverse(prima, dopo, 66, 100), 0);
}

void tst_RigheStrette::SpariteSenzaLaSpunta()
{
    ConRighe righe(0.1);
    const QImage prima = righe.Foglio()->grab().toImage();
    righe.Simula();
    righe.Simula();
    QCOMPARE(righe.Foglio()->grab().toImage(), prima);
}

void tst_RigheStrette::TrascinareRestaPronto()
{
    ConRighe righe(0.1);
    righe.prova.Archivio.DaAprire().Righe.yFine = 350;
    Trova<QLineEdit>(*righe.prova.Editor, "yFine")->setText(QStringLiteral("350"));
    righe.Simula();
    Frm1 &anteprima = *righe.prova.Editor->Anteprima();
    anteprima.SelezionaCampo(1);
    const QSize finestra = righe.prova.Foto().size(); // as large as the screen lets it be
    const TempoDiLavoro tempo;
    constexpr int Passi = 20;
    constexpr double PerMegapixel = 200; // ms of one step with the whole window painted again
    const double millisecondi = PerMegapixel * finestra.width() * finestra.height() / 1e6;
    for (int k = 0; k < Passi; ++k) {
        anteprima.SpostaCampo(1, Qt::LeftButton, {}, 1, 0);
        righe.prova.Foto();
    }
    QVERIFY2(tempo.Entro(Passi * millisecondi), qPrintable(QString::number(tempo.MilliSecondi())));
}

void tst_RigheStrette::UnPassoSenzaAltreRigheNonLeTocca()
{
    ConRighe righe(0.1);
    Trova<QLineEdit>(*righe.prova.Editor, "yFine")->setText(QStringLiteral("350"));
    righe.Simula();
    righe.prova.Foto();
    const TempoDiLavoro tempo;
    constexpr int Passi = 100;
    constexpr double Millisecondi = 1.5; // one step
    {
        // As a field does that is dragged and is not the one that the rows begin at.
        Documento &documento = righe.prova.Archivio.Stato().documento;
        const Campo &campo = documento.Aperto().Campi[1];
        Passo passo(documento, {});
        for (int k = 0; k < Passi; ++k) {
            passo.Trascina({Genere::Campo, 1}, {campo.X, campo.Y});
            passo.Mostra();
        }
    }
    QVERIFY2(tempo.Entro(Passi * Millisecondi), qPrintable(QString::number(tempo.MilliSecondi())));
    // What they depend on has changed: they follow.
    const QImage prima = righe.Foglio()->grab().toImage();
    Modifica(righe.prova.Archivio.Stato(), [](Modello &modello) { modello.Campi[1].X = 60; });
    QVERIFY(righe.Foglio()->grab().toImage() != prima);
}

QTEST_MAIN(tst_RigheStrette)
#include "tst_RigheStrette.moc"
