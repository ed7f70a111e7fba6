#include "RigheFile.h"
#include "Scrivania.h"

#include <QTest>

namespace {

QByteArray Piu5(const QByteArray &millimetri)
{
    return QByteArray::number(millimetri.toInt() + 5);
}

} // namespace

/// What is copied in one model is still there when its editor has been closed.
class tst_AppuntiTraModelli : public QObject
{
    Q_OBJECT

private slots:
    void dallaFatturaAlDdt();
};

void tst_AppuntiTraModelli::dallaFatturaAlDdt()
{
    using Voce = RigheFile::Cornice;
    const QByteArray cornice("Riquadro cliente");
    Scrivania scrivania;
    const RigheFile fonte(scrivania.CartellaModelli() + QStringLiteral("Fattura_Rossi.Mod"));
    const QString file = scrivania.CartellaModelli() + QStringLiteral("DDT_prestampato.Mod");

    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    scrivania.Anteprima();
    scrivania.Video().Clic(scrivania.SulFoglio({60, 35})); // the frame, beside its caption
    scrivania.Video().Tasti({QStringLiteral("ctrl+c")});
    scrivania.ChiudeEditor();
    scrivania.ApreModello(QStringLiteral("DDT_prestampato"));
    scrivania.Anteprima();
    scrivania.Video().Tasti({QStringLiteral("ctrl+v")});
    scrivania.Salva();
    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);

    const RigheFile dopo(file);
    QCOMPARE(dopo.Riga(cornice, Voce::X), Piu5(fonte.Riga(cornice, Voce::X)));
    QCOMPARE(dopo.Riga(cornice, Voce::Y), Piu5(fonte.Riga(cornice, Voce::Y)));
    for (const int voce : {int(Voce::Testo), int(Voce::Altezza), int(Voce::Larghezza)}) {
        QCOMPARE(dopo.Riga(cornice, voce), fonte.Riga(cornice, voce));
    }
}

QTEST_GUILESS_MAIN(tst_AppuntiTraModelli)
#include "tst_AppuntiTraModelli.moc"
