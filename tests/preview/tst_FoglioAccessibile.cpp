#include "Banco.h"

#include <QAccessible>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

/// What a screen reader is told while it listens.
QStringList detti;

QString NomeEvento(QAccessible::Event evento)
{
    switch (evento) {
    case QAccessible::NameChanged:
        return QStringLiteral("nome");
    case QAccessible::ValueChanged:
        return QStringLiteral("testo");
    case QAccessible::LocationChanged:
        return QStringLiteral("posto");
    case QAccessible::ObjectCreated:
        return QStringLiteral("creato");
    case QAccessible::ObjectDestroyed:
        return QStringLiteral("tolto");
    case QAccessible::SelectionAdd:
        return QStringLiteral("scelto");
    case QAccessible::SelectionRemove:
        return QStringLiteral("lasciato");
    case QAccessible::Focus:
        return QStringLiteral("fuoco");
    default:
        return {};
    }
}

void NotaEvento(QAccessibleEvent *evento)
{
    const QObject *oggetto = evento->object();
    const QString nome = NomeEvento(evento->type());
    if (dynamic_cast<const ControlloElemento *>(oggetto) != nullptr && !nome.isEmpty()) {
        detti.append(nome + u' ' + oggetto->objectName());
    }
}

/// A sheet that a screen reader reads.
class Lettura : public Banco
{
public:
    explicit Lettura(double zoom = 1)
        : Banco(zoom)
    {
        Ascolta(true);
        QAccessible::installUpdateHandler(&NotaEvento);
        detti.clear();
    }
    ~Lettura()
    {
        QAccessible::installUpdateHandler(nullptr);
        Ascolta(false);
    }
    Q_DISABLE_COPY_MOVE(Lettura)

    /// As the platform does when a screen reader starts or ends.
    static void Ascolta(bool attivo)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(attivo);
    }
    QAccessibleInterface *Foglio() const
    {
        return QAccessible::queryAccessibleInterface(Trova<QGraphicsView>(*frm, "P1"));
    }
    QStringList Nomi() const
    {
        QStringList nomi;
        for (int i = 0; i < Foglio()->childCount(); ++i) {
            nomi.append(Foglio()->child(i)->text(QAccessible::Name));
        }
        return nomi;
    }
    QAccessibleInterface *Figlio(const QString &nome) const
    {
        const qsizetype i = Nomi().indexOf(nome);
        if (i < 0) {
            qFatal("no child %s", qPrintable(nome));
        }
        return Foglio()->child(static_cast<int>(i));
    }
    void Esegue(const QString &figlio, const QString &azione) const
    {
        Figlio(figlio)->actionInterface()->doAction(azione);
    }
    void Elimina(Chiave chiave)
    {
        Passo passo(stato.documento, QStringLiteral("elimina"));
        passo.Elimina(chiave);
    }
};

const QString Apri = QAccessibleActionInterface::pressAction();
const QString ADestra = QStringLiteral("sposta a destra");
const QString ASinistra = QStringLiteral("sposta a sinistra");
const QString InSu = QStringLiteral("sposta in su");
const QString InGiu = QStringLiteral("sposta in giù");

} // namespace

/// The sheet as a screen reader finds it.
class tst_FoglioAccessibile : public QObject
{
    Q_OBJECT
private slots:
    void IFigliStannoInOrdineDiLettura();
    void OgniGenereDiceCheCosE();
    void IlRettangoloESulloSchermo_data();
    void IlRettangoloESulloSchermo();
    void QuelCheSiVedeEQuelCheEFuori();
    void SceltoEFuoco();
    void UnEliminatoNonEPiuUnFiglio();
    void ApreLeImpostazioni();
    void ScegliComeUnClic();
    void SpostaDiUnMillimetro();
    void LoSpostamentoSiFermaAlBordo();
    void ConUnDialogoApertoNonFaNulla();
    void DiceQuelCheCambia();
    void PassandoDiceSoloIlFuocoNuovo();
    void NessunoAscoltaENienteSiDice();
    void LaFinestraChiusaNonHaFigli();
};

void tst_FoglioAccessibile::IFigliStannoInOrdineDiLettura()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("basso"), 5, 60);
    lettura.Campo(QStringLiteral("destro"), 50, 20);
    lettura.Immagine(30, 20, 10, 10, QStringLiteral("logo.bmp"));
    lettura.Campo(QStringLiteral("sinistro"), 10, 20);
    QCOMPARE(lettura.Foglio()->text(QAccessible::Name), QStringLiteral("foglio"));
    QCOMPARE(lettura.Nomi(),
             (QStringList{QStringLiteral("campo sinistro"), QStringLiteral("immagine logo.bmp"),
                          QStringLiteral("campo destro"), QStringLiteral("campo basso")}));
    for (int i = 0; i < lettura.Foglio()->childCount(); ++i) {
        QAccessibleInterface *figlio = lettura.Foglio()->child(i);
        QCOMPARE(lettura.Foglio()->indexOfChild(figlio), i);
        QCOMPARE(figlio->parent(), lettura.Foglio());
        QVERIFY(figlio->isValid());
    }
    QVERIFY(lettura.Foglio()->child(4) == nullptr);
    QVERIFY(lettura.Foglio()->child(-1) == nullptr);
    // Moved, it is read elsewhere.
    lettura.Esegue(QStringLiteral("campo basso"), InSu);
    QCOMPARE(lettura.Nomi().constLast(), QStringLiteral("campo basso"));
    lettura.Lascia({Genere::Campo, 1}, {5, 3});
    QCOMPARE(lettura.Nomi().constFirst(), QStringLiteral("campo basso"));
}

void tst_FoglioAccessibile::OgniGenereDiceCheCosE()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("Doc_Numero"), 10, 10, QStringLiteral("128/A"));
    lettura.Cornice(10, 30, 30, 20);
    lettura.Immagine(10, 60, 30, 20, QStringLiteral("logo.bmp"));
    lettura.Cambia([](Modello &modello) {
        modello.Campi[1].Maschera = QStringLiteral("No");
        modello.Cornici[1].Nome = QStringLiteral("Cliente");
        modello.Cornici[1].Testo = QStringLiteral("Spett.le\nditta");
    });
    QAccessibleInterface *campo = lettura.Figlio(QStringLiteral("campo Doc_Numero"));
    QCOMPARE(campo->role(), QAccessible::StaticText);
    QCOMPARE(campo->text(QAccessible::Value), QStringLiteral("128/A"));
    QCOMPARE(campo->text(QAccessible::Description), QStringLiteral("128/A, non stampato"));
    QAccessibleInterface *cornice = lettura.Figlio(QStringLiteral("cornice Cliente"));
    QCOMPARE(cornice->role(), QAccessible::StaticText);
    QCOMPARE(cornice->text(QAccessible::Value), QStringLiteral("Spett.le ditta"));
    QAccessibleInterface *immagine = lettura.Figlio(QStringLiteral("immagine logo.bmp"));
    QCOMPARE(immagine->role(), QAccessible::Graphic);
    QCOMPARE(immagine->text(QAccessible::Value), QString());
    QCOMPARE(immagine->childCount(), 0);
}

void tst_FoglioAccessibile::IlRettangoloESulloSchermo_data()
{
    RigheDiZoom();
}

void tst_FoglioAccessibile::IlRettangoloESulloSchermo()
{
    QFETCH(double, zoom);
    Lettura lettura;
    lettura.Cornice(60, 40, 30, 20);
    lettura.Zoom(QString::number(zoom));
    const QAccessibleInterface *cornice = lettura.Foglio()->child(0);
    const QPoint foglio = lettura.Vista()->mapToGlobal(QPoint(0, 0));
    const QRectF atteso(QPointF(foglio) + QPointF(60, 40) / zoom / MillimetriPerPixel,
                        QSizeF(30, 20) / zoom / MillimetriPerPixel);
    const QRect rettangolo = cornice->rect();
    QVERIFY(qAbs(rettangolo.left() - atteso.left()) <= 1);
    QVERIFY(qAbs(rettangolo.top() - atteso.top()) <= 1);
    QVERIFY(qAbs(rettangolo.width() - atteso.width()) <= 1);
    QVERIFY(qAbs(rettangolo.height() - atteso.height()) <= 1);
    const QPoint centro = rettangolo.center();
    QCOMPARE(lettura.Foglio()->childAt(centro.x(), centro.y()), cornice);
    QVERIFY(lettura.Foglio()->childAt(rettangolo.left() - 5, centro.y()) == nullptr);
}

void tst_FoglioAccessibile::QuelCheSiVedeEQuelCheEFuori()
{
    Lettura lettura;
    lettura.Cornice(10, 10, 30, 20);
    lettura.Cornice(10, 300, 30, 20);
    QVERIFY(!lettura.Foglio()->child(0)->state().offscreen);
    QVERIFY(lettura.Foglio()->child(1)->state().offscreen);
    auto *barra = Trova<QScrollBar>(*lettura.frm, "ScrollY");
    barra->setValue(250);
    QVERIFY(lettura.Foglio()->child(0)->state().offscreen);
    QVERIFY(!lettura.Foglio()->child(1)->state().offscreen);
}

void tst_FoglioAccessibile::SceltoEFuoco()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    lettura.Campo(QStringLiteral("due"), 10, 30);
    const auto stato = [&](const char *nome) {
        return lettura.Figlio(QString::fromLatin1(nome))->state();
    };
    QVERIFY(stato("campo uno").selectable && stato("campo uno").focusable);
    QVERIFY(!stato("campo uno").selected && !stato("campo uno").focused);
    lettura.stato.selezione.ImpostaScelti({{Genere::Campo, 2}});
    QVERIFY(!stato("campo uno").selected && stato("campo due").selected);
    lettura.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(lettura.frm.get()));
    if (QWidget *altro = lettura.frm->focusWidget()) {
        altro->clearFocus();
    }
    lettura.frm->Sceglie({Genere::Campo, 1});
    QVERIFY(stato("campo uno").focused && !stato("campo due").focused);
    QCOMPARE(lettura.Foglio()->focusChild(), lettura.Figlio(QStringLiteral("campo uno")));
    // In another box the keyboard is there.
    Trova<QLineEdit>(*lettura.frm, "TextZoom")->setFocus();
    QVERIFY(!stato("campo uno").focused);
}

void tst_FoglioAccessibile::UnEliminatoNonEPiuUnFiglio()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    lettura.Campo(QStringLiteral("due"), 10, 30);
    QAccessibleInterface *uno = lettura.Figlio(QStringLiteral("campo uno"));
    detti.clear();
    lettura.Elimina({Genere::Campo, 1});
    QCOMPARE(lettura.Nomi(), QStringList(QStringLiteral("campo due")));
    QCOMPARE(detti, QStringList(QStringLiteral("tolto C1(1)")));
    QVERIFY(uno->state().invisible);
    uno->actionInterface()->doAction(ADestra);
    QCOMPARE(lettura.modello.Campi[1].X, 10.0);
    detti.clear();
    lettura.stato.documento.Annulla();
    QCOMPARE(lettura.Nomi().constFirst(), QStringLiteral("campo uno"));
    QCOMPARE(detti, QStringList(QStringLiteral("creato C1(1)")));
    QVERIFY(!uno->state().invisible);
}

void tst_FoglioAccessibile::ApreLeImpostazioni()
{
    Lettura lettura;
    lettura.Cornice(10, 10, 30, 20);
    const QAccessibleActionInterface *azioni = lettura.Foglio()->child(0)->actionInterface();
    QVERIFY(azioni->actionNames().contains(Apri));
    QCOMPARE(azioni->localizedActionName(Apri), QStringLiteral("apri"));
    lettura.segnali.clear();
    lettura.Foglio()->child(0)->actionInterface()->doAction(Apri);
    QCOMPARE(lettura.Volte("RichiestaProprieta 1 1"), 0); // the screen reader is answered first
    QTRY_COMPARE(lettura.Volte("RichiestaProprieta 1 1"), 1);
}

void tst_FoglioAccessibile::ScegliComeUnClic()
{
    Lettura lettura;
    lettura.Immagine(10, 10, 30, 20, QStringLiteral("logo.bmp"));
    lettura.segnali.clear();
    lettura.Esegue(QStringLiteral("immagine logo.bmp"),
                   QAccessibleActionInterface::setFocusAction());
    QCOMPARE(lettura.InMano(3), 1);
    QCOMPARE(lettura.Volte("ElementoPuntato 2 1"), 1);
    QCOMPARE(lettura.Volte("PaginaRichiesta 2"), 1);
    QCOMPARE(lettura.stato.selezione.Scelti(), QList<Chiave>({{Genere::Immagine, 1}}));
}

void tst_FoglioAccessibile::SpostaDiUnMillimetro()
{
    Lettura lettura(2);
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    const QRect prima = lettura.Foglio()->child(0)->rect();
    for (int volta = 0; volta < 3; ++volta) {
        lettura.Esegue(QStringLiteral("campo uno"), ADestra);
    }
    QCOMPARE(lettura.modello.Campi[1].X, 13.0);
    QVERIFY(lettura.Foglio()->child(0)->rect().left() > prima.left());
    lettura.Esegue(QStringLiteral("campo uno"), InGiu);
    QCOMPARE(lettura.modello.Campi[1].Y, 11.0);
    lettura.Esegue(QStringLiteral("campo uno"), InSu);
    lettura.Esegue(QStringLiteral("campo uno"), ASinistra);
    QCOMPARE(lettura.modello.Campi[1].X, 12.0);
    // Repeated at once they are one step: left, up, down, right.
    int passi = 0;
    for (; lettura.stato.documento.PuoAnnullare(); ++passi) {
        lettura.stato.documento.Annulla();
    }
    QCOMPARE(passi, 4);
    QCOMPARE(lettura.modello.Campi[1].X, 10.0);
}

void tst_FoglioAccessibile::LoSpostamentoSiFermaAlBordo()
{
    Lettura lettura;
    lettura.Cornice(0, 330, 30, 20);
    for (const QString &azione : {ASinistra, InGiu}) {
        lettura.Foglio()->child(0)->actionInterface()->doAction(azione);
    }
    QCOMPARE(lettura.modello.Cornici[1].X, 0.0);
    QCOMPARE(lettura.modello.Cornici[1].Y, 330.0);
    QVERIFY(!lettura.stato.documento.PuoAnnullare());
}

void tst_FoglioAccessibile::ConUnDialogoApertoNonFaNulla()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    lettura.segnali.clear();
    QWidget dialogo;
    dialogo.setWindowModality(Qt::ApplicationModal);
    dialogo.show();
    QTRY_VERIFY(QApplication::activeModalWidget() == &dialogo);
    lettura.Esegue(QStringLiteral("campo uno"), ADestra);
    lettura.Esegue(QStringLiteral("campo uno"), Apri);
    QCoreApplication::processEvents();
    QCOMPARE(lettura.modello.Campi[1].X, 10.0);
    QVERIFY(lettura.segnali.isEmpty());
}

void tst_FoglioAccessibile::DiceQuelCheCambia()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    lettura.Cornice(10, 30, 30, 20);
    detti.clear();
    Campo campo = lettura.modello.Campi[1];
    campo.Testo = QStringLiteral("altro");
    Passo(lettura.stato.documento, {}).Scrive(1, campo);
    QCOMPARE(detti, (QStringList{QStringLiteral("nome C1(1)"), QStringLiteral("testo C1(1)"),
                                 QStringLiteral("posto C1(1)")}));
    detti.clear();
    {
        Passo passo(lettura.stato.documento, {});
        passo.Trascina({Genere::Cornice, 1}, {11.5, 30});
        passo.Mostra();
        QCOMPARE(detti, QStringList(QStringLiteral("posto C2(1)")));
        passo.Rinuncia();
    }
    detti.clear();
    lettura.stato.selezione.ImpostaScelti({{Genere::Campo, 1}, {Genere::Cornice, 1}});
    lettura.stato.selezione.AlternaScelto({Genere::Campo, 1});
    QCOMPARE(detti, (QStringList{QStringLiteral("scelto C1(1)"), QStringLiteral("scelto C2(1)"),
                                 QStringLiteral("lasciato C1(1)")}));
}

void tst_FoglioAccessibile::PassandoDiceSoloIlFuocoNuovo()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10, QStringLiteral("abcdefghi"));
    lettura.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(lettura.frm.get()));
    if (QWidget *altro = lettura.frm->focusWidget()) {
        altro->clearFocus();
    }
    lettura.Muove({100, 100});
    detti.clear();
    lettura.Muove({15, 12});
    lettura.Muove({16, 12});
    lettura.Muove({17, 12});
    QCOMPARE(detti.count(QStringLiteral("fuoco C1(1)")), 1);
    QCOMPARE(detti.size(), 1);
}

void tst_FoglioAccessibile::NessunoAscoltaENienteSiDice()
{
    Lettura lettura;
    Lettura::Ascolta(false);
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    detti.clear();
    lettura.frm->Sceglie({Genere::Campo, 1});
    lettura.stato.selezione.ImpostaScelti({{Genere::Campo, 1}});
    lettura.Elimina({Genere::Campo, 1});
    QCOMPARE(detti, QStringList());
}

void tst_FoglioAccessibile::LaFinestraChiusaNonHaFigli()
{
    Lettura lettura;
    lettura.Campo(QStringLiteral("uno"), 10, 10);
    const QAccessible::Id id = QAccessible::uniqueId(lettura.Foglio()->child(0));
    lettura.frm.reset();
    QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
}

QTEST_MAIN(tst_FoglioAccessibile)
#include "tst_FoglioAccessibile.moc"
