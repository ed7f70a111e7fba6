#include "Confronti.h"

#include "Ritratto.h"

#include "model/FileModello.h"
#include "preview/ContorniScelti.h"
#include "preview/MisuraSuCarta.h"
#include "support/FileDiProva.h"

#include <QAbstractButton>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QScrollBar>
#include <QTabWidget>

namespace {

constexpr int PassiFraVerifiche = 10;

QString PrimaDiversa(const QByteArray &uno, const QByteArray &altro)
{
    const QStringList diverse = RigheCambiate(QString::fromLatin1(uno).split(u'\n'),
                                              QString::fromLatin1(altro).split(u'\n'));
    return diverse.mid(0, PassiFraVerifiche).join(u'\n');
}

/// Nothing waits to be rounded by the next placing.
bool SuMillimetriInteri(const Modello &modello)
{
    Modello collocato = modello;
    collocato.ArrotondaTutti();
    return collocato == modello;
}

/// An image that has been added and has no picture yet.
bool ImmagineSenzaNome(const Postazione &posto)
{
    const Documento &documento = posto.Archivio.Stato().documento;
    for (int i = 1; i <= posto.Aperto().UltimoSlot(Genere::Immagine); ++i) {
        if (documento.InVista({Genere::Immagine, i}) &&
            !posto.Aperto().Presente(Genere::Immagine, i)) {
            return true;
        }
    }
    return false;
}

int Valore(const Postazione &posto, const char *barra)
{
    return Trova<QScrollBar>(posto.Anteprima(), barra)->value();
}

/// Makes the other editor look at the same part of the sheet in the same way.
void Imita(const Postazione &altra, const Postazione &posto)
{
    if (posto.Scala() != altra.Scala()) {
        altra.Zoom(QString::number(posto.Scala()));
    }
    if (Trova<QAbstractButton>(posto.Finestra(), "OptSimuloRighe")->isChecked()) {
        altra.Preme("OptSimuloRighe");
    }
    altra.Scorre(Valore(posto, "ScrollX"), Valore(posto, "ScrollY"));
}

QString Mostrato(const Postazione &posto, const Postazione &altra)
{
    const Ritratto aperto = DelModello(altra);
    const Ritratto adesso = DelModello(posto);
    const QStringList diverse = Differenze(aperto, adesso);
    return diverse.isEmpty()
               ? QString()
               : QStringLiteral("shown:\n%1\nopened:\n%2")
                     .arg(diverse.join(u'\n'), Differenze(adesso, aperto).join(u'\n'));
}

/// Pixels of the first that cannot be found in the second, not even one pixel away.
int Perduti(const QImage &una, const QImage &altra)
{
    int perduti = 0;
    const QRect intera = altra.rect();
    for (int y = 0; y < una.height(); ++y) {
        for (int x = 0; x < una.width(); ++x) {
            const QRgb colore = una.pixel(x, y);
            bool trovato = altra.pixel(x, y) == colore;
            const QRect vicini = trovato ? QRect() : QRect(x - 1, y - 1, 3, 3) & intera;
            for (int v = vicini.top(); v <= vicini.bottom() && !trovato; ++v) {
                for (int u = vicini.left(); u <= vicini.right() && !trovato; ++u) {
                    trovato = altra.pixel(u, v) == colore;
                }
            }
            perduti += trovato ? 0 : 1;
        }
    }
    return perduti;
}

/// The places of the images that are there, to the last digit.
QList<double> Posti(const Modello &modello)
{
    QList<double> posti;
    for (int i = 1; i <= modello.UltimoSlot(Genere::Immagine); ++i) {
        if (modello.Presente(Genere::Immagine, i)) {
            const Immagine &immagine = modello.Immagini[i];
            posti << immagine.X << immagine.Y << immagine.Larghezza << immagine.Altezza;
        }
    }
    return posti;
}

/// True when two elements of a kind have one area and a slot before them is free: they are stacked
/// by the text of their numbers, and an opening numbers them anew.
bool PilaAltrimenti(const Modello &modello)
{
    for (const Genere genere : Generi) {
        bool libero = false;
        QList<double> aree;
        for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
            if (!modello.Presente(genere, i)) {
                libero = true;
                continue;
            }
            const QSizeF misura = MisuraSuCarta(modello, {genere, i});
            const double area = misura.width() * misura.height();
            if (aree.contains(area) && libero) {
                return true;
            }
            aree.append(area);
        }
    }
    return false;
}

/// esatto: what is shown has the same places to the last digit. Otherwise an edge in the middle
/// between two pixels may go to the other one, and change letters that it crosses.
QString Confronta(const QImage &adesso, const QImage &altra, bool esatto, const QString &detto)
{
    constexpr int PixelDiUnaLettera = 40;
    if (adesso == altra || (!esatto && adesso.size() == altra.size() &&
                            Perduti(adesso, altra) + Perduti(altra, adesso) < PixelDiUnaLettera)) {
        return {};
    }
    if (const QString cartella = qEnvironmentVariable("PLAKERA_FIGURE"); !cartella.isEmpty()) {
        adesso.save(cartella + QStringLiteral("/adesso.png"));
        altra.save(cartella + QStringLiteral("/altra.png"));
    }
    return detto;
}

} // namespace

StatoVisto StatoVisto::Di(const Postazione &posto)
{
    QStringList voci;
    for (const Genere genere : Generi) {
        voci += Voci(posto.Finestra(), NomeCombo(genere));
    }
    return {posto.Aperto(), posto.DaSalvare(), voci};
}

QString StatoVisto::Differenza(const StatoVisto &altro) const
{
    if (byte != altro.byte) {
        return QStringLiteral("other bytes:\n") + PrimaDiversa(byte, altro.byte);
    }
    if (!(modello == altro.modello)) {
        return QStringLiteral("the same bytes of another model");
    }
    if (voci != altro.voci) {
        return QStringLiteral("other items:\n") + RigheCambiate(voci, altro.voci).join(u'\n');
    }
    return {};
}

QImage Foglio(const Postazione &posto)
{
    const auto *pagine = Trova<QTabWidget>(posto.Finestra(), "SSTab1");
    const int pagina = pagine->currentIndex();
    posto.Editor->Anteprima()->Campineri(); // as a pointer does that leaves them
    posto.Pagina(pagina == 0 ? 1 : 0);
    posto.Pagina(pagina);
    QCoreApplication::processEvents();
    auto *P1 = Trova<QGraphicsView>(posto.Anteprima(), "P1");
    // What is chosen is no part of the model: a fresh opening shows no outlines.
    QList<QGraphicsItem *> contorni = P1->scene()->items();
    contorni.removeIf([](QGraphicsItem *pezzo) {
        return !pezzo->isVisible() || dynamic_cast<ContornoScelto *>(pezzo) == nullptr;
    });
    for (QGraphicsItem *contorno : contorni) {
        contorno->setVisible(false);
    }
    const QImage foglio = P1->grab().toImage();
    for (QGraphicsItem *contorno : contorni) {
        contorno->setVisible(true);
    }
    return foglio;
}

QString ComeRiaperto(const Sequenza &sequenza)
{
    const Postazione &posto = sequenza.Posto;
    Postazione altra;
    altra.Archivio.Stato().CartellaModelli = posto.Archivio.Stato().CartellaModelli;
    altra.Archivio.Stato().NomeFile = QStringLiteral("Riaperto.Mod");
    ScriveFile(altra.Archivio.Percorso(), posto.DaSalvare());
    Robot robot;
    robot.Ok(); // a scan that cannot be loaded is told once
    if (!altra.ApreComeSta()) {
        return QStringLiteral("what would be saved does not open: ") + robot.Testi().join(u'|');
    }
    Imita(altra, posto);
    for (const QString &testo : robot.Testi()) {
        if (!Sequenza::Previsto(testo)) {
            return QStringLiteral("opening says: ") + testo;
        }
    }
    const QString diverso = Mostrato(posto, altra);
    if (!diverso.isEmpty() || !SuMillimetriInteri(posto.Aperto()) || ImmagineSenzaNome(posto)) {
        return diverso;
    }
    return Confronta(Foglio(posto), Foglio(altra),
                     Posti(posto.Aperto()) == Posti(altra.Aperto()) &&
                         !PilaAltrimenti(posto.Aperto()),
                     QStringLiteral("the sheet looks different"));
}

namespace {

/// One way through the history.
class Cammino
{
public:
    explicit Cammino(Sequenza &sequenza)
        : sequenza_(sequenza)
    {
    }

    /// Presses the keys until there is nothing left to take back; the states, the last one first.
    QString Indietro(QList<StatoVisto> &stati);
    /// The keys of redo, until there is nothing left; the states have to come back.
    QString Avanti(const QList<StatoVisto> &stati);

private:
    const Documento &Aperto() const { return sequenza_.Posto.Archivio.Stato().documento; }
    /// In the editor and in the preview by turns.
    QString Preme(Qt::Key tasto, Qt::KeyboardModifiers modi);

    Sequenza &sequenza_;
    int premuti_ = 0;
    QString giaAnnullato_; // the step that the work itself had taken back last
};

QString Cammino::Preme(Qt::Key tasto, Qt::KeyboardModifiers modi)
{
    const Postazione &posto = sequenza_.Posto;
    QWidget &finestra = ++premuti_ % 2 == 0 ? posto.Anteprima() : posto.Finestra();
    const QString storia = Aperto().TestoAnnulla() + u'|' + Aperto().TestoRipristina();
    const QString guasto =
        sequenza_.Esegue(QStringLiteral("tasto ") + QKeySequence(modi | tasto).toString() +
                             QStringLiteral(" su ") + storia,
                         [&] { QTest::keyClick(&finestra, tasto, modi); });
    if (!guasto.isEmpty() || premuti_ % PassiFraVerifiche != 0) {
        return guasto;
    }
    return ComeRiaperto(sequenza_);
}

QString Cammino::Indietro(QList<StatoVisto> &stati)
{
    stati = {StatoVisto::Di(sequenza_.Posto)};
    giaAnnullato_ = Aperto().PuoRipristinare() ? Aperto().TestoRipristina() : QString();
    while (Aperto().PuoAnnullare()) {
        const QString guasto = Preme(Qt::Key_Z, Qt::ControlModifier);
        if (!guasto.isEmpty()) {
            return guasto;
        }
        if (stati.size() > Documento::PassiTenuti) {
            return QStringLiteral("there is no end of what can be taken back");
        }
        stati.append(StatoVisto::Di(sequenza_.Posto));
    }
    return {};
}

QString Cammino::Avanti(const QList<StatoVisto> &stati)
{
    for (qsizetype k = stati.size() - 2; k >= 0; --k) {
        if (!Aperto().PuoRipristinare()) {
            return QStringLiteral("%1 steps cannot be done again").arg(k + 1);
        }
        const bool y = k % 2 == 0;
        QString guasto = Preme(y ? Qt::Key_Y : Qt::Key_Z,
                               y ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
        if (guasto.isEmpty()) {
            guasto = stati[k].Differenza(StatoVisto::Di(sequenza_.Posto));
        }
        if (!guasto.isEmpty()) {
            return guasto;
        }
    }
    const QString resta = Aperto().PuoRipristinare() ? Aperto().TestoRipristina() : QString();
    return resta == giaAnnullato_ ? QString()
                                  : QStringLiteral("another step can be done again: ") + resta;
}

} // namespace

QString AvantiEIndietro(Sequenza &sequenza)
{
    const Postazione &posto = sequenza.Posto;
    // A text box would take back its own letters first.
    Trova<QTabWidget>(posto.Finestra(), "SSTab1")->setFocus(Qt::TabFocusReason);
    const QImage ultimo = Foglio(posto);
    const int x = Valore(posto, "ScrollX");
    const int y = Valore(posto, "ScrollY");
    Cammino cammino(sequenza);
    QList<StatoVisto> stati;
    QString guasto = cammino.Indietro(stati);
    if (guasto.isEmpty()) {
        guasto = sequenza.AllInizio().Differenza(stati.last());
    }
    if (guasto.isEmpty()) {
        guasto = ComeRiaperto(sequenza);
    }
    if (guasto.isEmpty()) {
        guasto = cammino.Avanti(stati);
    }
    if (!guasto.isEmpty()) {
        return guasto;
    }
    posto.Scorre(x, y);
    return Confronta(Foglio(posto), ultimo, true,
                     QStringLiteral("done again, the sheet is another"));
}
