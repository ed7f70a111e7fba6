#include "Ritratto.h"

#include "model/Numeri.h"
#include "preview/Controlli.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace {

// A hair below a half is the half itself, divided by the zoom and multiplied again.
constexpr double Briciola = 1e-6;

QString Mm(double valore)
{
    constexpr double Centesimi = 100;
    // Without the sign of a zero.
    return QString::number(std::floor(valore * Centesimi + 0.5 + Briciola) / Centesimi + 0.0);
}

QString Coppia(double x, double y)
{
    return Mm(x) + u' ' + Mm(y);
}

QString SiNo(bool valore)
{
    return valore ? QStringLiteral("sì") : QStringLiteral("no");
}

QString Tra(const QString &testo)
{
    return u'«' + testo + u'»';
}

QString Una(QString testo)
{
    return testo.replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
}

QString SenzaCommerciale(QString testo)
{
    return testo.remove(u'&');
}

template <typename Voce>
QList<Voce *> DallaScena(const Postazione &posto)
{
    QList<Voce *> trovati;
    const auto voci = Trova<QGraphicsView>(posto.Anteprima(), "P1")->scene()->items();
    for (QGraphicsItem *voce : voci) {
        if (auto *trovato = dynamic_cast<Voce *>(voce); trovato != nullptr && voce->isVisible()) {
            trovati.append(trovato);
        }
    }
    return trovati;
}

QString Carattere(const ControlloTesto &controllo)
{
    const TestoScalato::Aspetto &forma = controllo.Testo().Forma();
    return forma.famiglia + u' ' + Mm(controllo.Punti()) +
           (forma.grassetto ? QStringLiteral(" grassetto") : QString()) +
           (forma.barrato ? QStringLiteral(" barrato") : QString());
}

/// Look of an element without its place.
QString Aspetto(const Postazione &posto, const ControlloElemento &elemento)
{
    QString aspetto;
    if (const auto *controllo = dynamic_cast<const ControlloTesto *>(&elemento)) {
        QString testo = controllo->Testo().Testo();
        if (elemento.genere == Genere::Campo) {
            testo = SenzaCifreACaso(testo, posto.Aperto().Campi[elemento.indice]);
        }
        aspetto = Tra(testo) + u' ' + Carattere(*controllo) + u' ' + controllo->Colore().name();
    }
    if (elemento.Bordo()) {
        aspetto += QStringLiteral(" bordo ") + elemento.ColoreBordo().name();
    }
    return aspetto + QStringLiteral(" | ") + Una(elemento.toolTip());
}

QString Descritto(const Postazione &posto, const ControlloElemento &elemento)
{
    const QRectF &r = elemento.Posto();
    QString testo = Coppia(r.x(), r.y());
    if (elemento.genere != Genere::Campo) {
        testo += u' ' + Coppia(r.width(), r.height());
    }
    return testo + u' ' + Aspetto(posto, elemento);
}

void AggiungeElementi(Ritratto &ritratto, const Postazione &posto)
{
    QList<ControlloElemento *> elementi = DallaScena<ControlloElemento>(posto);
    std::sort(elementi.begin(), elementi.end(), [](const auto *a, const auto *b) {
        return std::pair(a->genere, a->indice) < std::pair(b->genere, b->indice);
    });
    for (const ControlloElemento *elemento : elementi) {
        ritratto.append({elemento->objectName(), Descritto(posto, *elemento)});
    }
    std::sort(elementi.begin(), elementi.end(),
              [](const auto *a, const auto *b) { return a->zValue() > b->zValue(); });
    QStringList pila;
    for (const ControlloElemento *elemento : elementi) {
        pila.append(elemento->objectName());
    }
    ritratto.append({QStringLiteral("pila"), pila.join(u' ')});
}

QString RigheSimulateViste(const Postazione &posto)
{
    QList<QPointF> angoli;
    for (const Riga *riga : DallaScena<Riga>(posto)) {
        angoli.append(riga->Posto().topLeft());
    }
    std::sort(angoli.begin(), angoli.end(), [](QPointF a, QPointF b) {
        return std::pair(a.y(), a.x()) < std::pair(b.y(), b.x());
    });
    QStringList righe;
    for (const QPointF &angolo : angoli) {
        righe.append(Coppia(angolo.x(), angolo.y()));
    }
    return righe.join(QStringLiteral(", "));
}

void AggiungeManiglie(Ritratto &ritratto, const Postazione &posto)
{
    QList<Maniglia *> maniglie = DallaScena<Maniglia>(posto);
    std::sort(maniglie.begin(), maniglie.end(),
              [](const auto *a, const auto *b) { return a->objectName() < b->objectName(); });
    for (const Maniglia *maniglia : maniglie) {
        ritratto.append(
            {maniglia->objectName(),
             maniglia->Tag + QStringLiteral(" a ") +
                 Coppia(maniglia->Posto().x(), maniglia->Posto().y()) +
                 (maniglia->Puntatore() == Qt::SizeAllCursor ? QString()
                                                             : QStringLiteral(" ferma")) +
                 QStringLiteral(" | ") + maniglia->toolTip()});
    }
    for (const LineaGuida *linea : DallaScena<LineaGuida>(posto)) {
        ritratto.append({linea->objectName(), QStringLiteral("visibile")});
    }
}

void AggiungeCombo(Ritratto &ritratto, const Postazione &posto, Genere genere)
{
    const QString nome = QString::fromLatin1(NomeCombo(genere));
    const QStringList voci = Voci(posto.Finestra(), NomeCombo(genere));
    for (int i = 0; i < voci.size(); ++i) {
        ritratto.append({QStringLiteral("%1[%2]").arg(nome).arg(i), Tra(voci[i])});
    }
    ritratto.append(
        {nome,
         QString::number(Trova<QComboBox>(posto.Finestra(), NomeCombo(genere))->currentIndex())});
}

void AggiungeCaselle(Ritratto &ritratto, const QWidget &finestra,
                     std::initializer_list<const char *> nomi)
{
    for (const char *nome : nomi) {
        ritratto.append({QString::fromLatin1(nome), Tra(Trova<QLineEdit>(finestra, nome)->text())});
    }
}

void AggiungeSpunte(Ritratto &ritratto, const QWidget &finestra,
                    std::initializer_list<const char *> nomi)
{
    for (const char *nome : nomi) {
        const auto *spunta = Trova<QAbstractButton>(finestra, nome);
        const auto *tre = qobject_cast<const QCheckBox *>(spunta);
        const bool grigia = tre != nullptr && tre->checkState() == Qt::PartiallyChecked;
        ritratto.append({QString::fromLatin1(nome),
                         grigia ? QStringLiteral("grigia") : SiNo(spunta->isChecked())});
    }
}

/// Controls of the dialogs that hold nothing of an element.
const QStringList Aiuti{QStringLiteral("Importa"), QStringLiteral("Proporzioni")};

/// What opening leaves of a place.
QString Intero(double millimetri)
{
    return QString::number(Numeri::Ar(millimetri + Briciola));
}

QString PostoAperto(const Postazione &posto, const ControlloElemento &elemento)
{
    const QRectF &r = elemento.Posto();
    const double z = posto.Scala();
    const auto numero = [&](double v) {
        return elemento.genere == Genere::Immagine ? Mm(v * z) : Intero(v * z);
    };
    const bool rigato =
        elemento.genere == Genere::Campo && CampoDiRiga(posto.Aperto().Campi[elemento.indice]);
    QString testo = numero(r.x()) + u' ' + (rigato ? Mm(r.y() * z) : numero(r.y()));
    if (elemento.genere == Genere::Campo) {
        return testo + u' ' + Coppia(r.width(), r.height());
    }
    return testo + u' ' + numero(r.width()) + u' ' + numero(r.height());
}

/// The element without what the pointer does to it.
QString AspettoFermo(const ControlloElemento &elemento)
{
    const auto *controllo = dynamic_cast<const ControlloTesto *>(&elemento);
    QString aspetto = Una(elemento.toolTip());
    if (controllo != nullptr) {
        aspetto += u' ' + Tra(controllo->Testo().Testo()) + u' ' + Carattere(*controllo);
    }
    if (elemento.genere == Genere::Cornice) {
        aspetto += u' ' + controllo->Colore().name() + u' ' +
                   (elemento.Bordo() ? elemento.ColoreBordo().name() : SiNo(false));
    }
    return aspetto;
}

void AggiungePresenti(Ritratto &ritratto, const Postazione &posto, Genere genere)
{
    const QStringList voci = Voci(posto.Finestra(), NomeCombo(genere));
    int presenti = 0;
    for (int i = 1; i < voci.size(); ++i) {
        // A picture that was chosen and not confirmed is in the model, and neither its item nor
        // its hint says so yet.
        const QString &nome = posto.Aperto().Nome(genere, i);
        const bool inSospeso = genere == Genere::Immagine && nome != voci[i] && !nome.isEmpty();
        if (!inSospeso &&
            (voci[i].isEmpty() || voci[i].startsWith(QStringLiteral(" ELIMINATO:")))) {
            continue;
        }
        const QString chiave = QString::fromLatin1(NomeCombo(genere)) + QString::number(++presenti);
        const auto *elemento = dynamic_cast<ControlloElemento *>(posto.Elemento(genere, i));
        const bool visibile = elemento != nullptr && elemento->isVisible();
        ritratto.append({chiave, inSospeso ? nome : voci[i]});
        ritratto.append({chiave + QStringLiteral(" posto"),
                         visibile ? PostoAperto(posto, *elemento) : SiNo(false)});
        ritratto.append(
            {chiave + QStringLiteral(" aspetto"), inSospeso  ? QStringLiteral("Immagine ") + nome
                                                  : visibile ? AspettoFermo(*elemento)
                                                             : SiNo(false)});
    }
}

} // namespace

Ritratto DelleFinestre(const Postazione &posto)
{
    const QWidget &finestra = posto.Finestra();
    Ritratto ritratto;
    ritratto.append({QStringLiteral("Variato"), SiNo(posto.Variato())});
    ritratto.append({QStringLiteral("Form2"), SiNo(finestra.isVisible())});
    ritratto.append({QStringLiteral("Frm1"), SiNo(posto.Anteprima().isVisible())});
    const auto *pagine = Trova<QTabWidget>(finestra, "SSTab1");
    ritratto.append({QStringLiteral("SSTab1"), QString::number(pagine->currentIndex()) + u' ' +
                                                   pagine->tabText(pagine->currentIndex())});
    for (const Genere genere : Generi) {
        AggiungeCombo(ritratto, posto, genere);
    }
    AggiungeCaselle(ritratto, finestra,
                    {"Tipo", "yInizio", "yFine", "Interlinea", "InterlineaDescr", "SeguePag",
                     "Spostamento", "SfondoFileImmagine", "SfondoXimmagine", "SfondoYImmagine",
                     "SfondoXPosImm", "SfondoYPosImm"});
    AggiungeSpunte(
        ritratto, finestra,
        {"OptSimuloRighe", "OptDx", "OptSx", "OptSu", "OptGiu", "VisualizzaImmagineSfondo"});
    AggiungeElementi(ritratto, posto);
    AggiungeManiglie(ritratto, posto);
    ritratto.append({QStringLiteral("righe simulate"), RigheSimulateViste(posto)});
    AggiungeCaselle(ritratto, posto.Anteprima(), {"TextZoom", "PX", "PY", "LL"});
    for (const char *barra : {"ScrollX", "ScrollY"}) {
        ritratto.append({QString::fromLatin1(barra),
                         QString::number(Trova<QScrollBar>(posto.Anteprima(), barra)->value())});
    }
    ritratto.append(
        {QStringLiteral("Text1"), Tra(Trova<QLabel>(posto.Anteprima(), "Text1")->text())});
    ritratto.append(
        {QStringLiteral("puntatore"),
         QString::number(
             Trova<QGraphicsView>(posto.Anteprima(), "P1")->viewport()->cursor().shape())});
    return ritratto;
}

Ritratto DelModello(const Postazione &posto)
{
    const QWidget &finestra = posto.Finestra();
    Ritratto ritratto;
    for (const Genere genere : Generi) {
        AggiungePresenti(ritratto, posto, genere);
    }
    AggiungeCaselle(ritratto, finestra,
                    {"Tipo", "SfondoFileImmagine", "SfondoXimmagine", "SfondoYImmagine",
                     "SfondoXPosImm", "SfondoYPosImm"});
    // A model that lacks the caption is read with the usual one.
    const QString segue = Trova<QLineEdit>(finestra, "SeguePag")->text();
    ritratto.append({QStringLiteral("SeguePag"),
                     segue.isEmpty() ? QString(Modello::SeguePagPredefinito) : segue});
    AggiungeSpunte(ritratto, finestra, {"VisualizzaImmagineSfondo"});
    for (const char *nome : {"yInizio", "yFine", "Interlinea", "InterlineaDescr"}) {
        ritratto.append(
            {QString::fromLatin1(nome), Mm(Numeri::Val(Trova<QLineEdit>(finestra, nome)->text()))});
    }
    ritratto.append({QStringLiteral("righe simulate"), RigheSimulateViste(posto)});
    return ritratto;
}

Ritratto DelDialogo(const QWidget &dialogo)
{
    Ritratto ritratto;
    // Only the fields' dialog draws samples.
    Campo campo;
    if (const auto *maschera = dialogo.findChild<QLineEdit *>(QStringLiteral("Maschera"))) {
        campo.Maschera = maschera->text();
        campo.MascheraDefault = Trova<QLineEdit>(dialogo, "MascheraDefault")->text();
    }
    const auto controlli = dialogo.findChildren<QWidget *>();
    for (const QWidget *controllo : controlli) {
        const QString nome = controllo->objectName();
        const QString spento = controllo->isEnabled() ? QString() : QStringLiteral(" spento");
        if (nome.isEmpty() || nome.startsWith(QStringLiteral("qt_")) ||
            qobject_cast<const QToolButton *>(controllo) != nullptr || Aiuti.contains(nome)) {
            continue; // what they do shows in the boxes beside them
        }
        if (const auto *casella = qobject_cast<const QLineEdit *>(controllo)) {
            const bool campione = nome == QStringLiteral("Testo");
            ritratto.append(
                {nome, Tra(campione ? SenzaCifreACaso(casella->text(), campo) : casella->text()) +
                           spento});
        } else if (const auto *combo = qobject_cast<const QComboBox *>(controllo)) {
            ritratto.append({nome, Tra(combo->currentText()) + QStringLiteral(" di ") +
                                       QString::number(combo->count())});
        } else if (const auto *bottone = qobject_cast<const QPushButton *>(controllo)) {
            ritratto.append({nome, Tra(SenzaCommerciale(bottone->text()))});
        } else if (const auto *spunta = qobject_cast<const QAbstractButton *>(controllo)) {
            ritratto.append({nome, SiNo(spunta->isChecked())});
        } else if (const auto *elenco = qobject_cast<const QListWidget *>(controllo)) {
            QStringList voci;
            for (int i = 0; i < elenco->count(); ++i) {
                voci.append(QString(elenco->currentRow() == i ? 1 : 0, u'*') +
                            elenco->item(i)->text());
            }
            ritratto.append({nome, voci.join(QStringLiteral(", "))});
        }
    }
    std::sort(ritratto.begin(), ritratto.end());
    return ritratto;
}

QStringList Differenze(const Ritratto &prima, const Ritratto &dopo)
{
    QHash<QString, QString> vecchie;
    for (const auto &[nome, valore] : prima) {
        vecchie.insert(nome, valore);
    }
    QStringList righe;
    for (const auto &[nome, valore] : dopo) {
        const auto vecchia = vecchie.constFind(nome);
        if (vecchia == vecchie.constEnd() || *vecchia != valore) {
            righe.append(nome + QStringLiteral(": ") + valore);
        }
        vecchie.remove(nome);
    }
    for (const auto &[nome, valore] : prima) {
        if (vecchie.contains(nome)) {
            righe.append(nome + QStringLiteral(": -"));
        }
    }
    return righe;
}

QStringList RigheCambiate(const QStringList &prima, const QStringList &dopo)
{
    QStringList cambiate;
    const auto nota = [&](QChar segno, qsizetype riga, const QString &testo) {
        cambiate.append(segno + QString::number(riga + 1) + QStringLiteral(": ") + testo);
    };
    if (prima.size() == dopo.size()) {
        for (qsizetype i = 0; i < dopo.size(); ++i) {
            if (prima[i] != dopo[i]) {
                nota(u'=', i, dopo[i]);
            }
        }
        return cambiate;
    }
    const auto [p, d] = std::mismatch(prima.begin(), prima.end(), dopo.begin(), dopo.end());
    const qsizetype inizio = p - prima.begin();
    qsizetype coda = 0;
    while (coda < std::min(prima.size(), dopo.size()) - inizio &&
           prima[prima.size() - 1 - coda] == dopo[dopo.size() - 1 - coda]) {
        ++coda;
    }
    for (qsizetype i = inizio; i < prima.size() - coda; ++i) {
        nota(u'-', i, prima[i]);
    }
    for (qsizetype i = inizio; i < dopo.size() - coda; ++i) {
        if (!dopo[i].isEmpty() || !prima.isEmpty()) { // a model begins with dozens of empty lines
            nota(u'+', i, dopo[i]);
        }
    }
    return cambiate;
}

QString SenzaCifreACaso(const QString &testo, const Campo &campo)
{
    const QString senza = SenzaCifreACaso(testo, campo.Maschera);
    return senza == testo ? SenzaCifreACaso(testo, campo.MascheraDefault) : senza;
}

QString SenzaCifreACaso(const QString &testo, const QString &maschera)
{
    const QString forma = maschera.chopped(maschera.isEmpty() ? 0 : 1);
    if (!forma.contains(u'#') || testo.size() != forma.size()) {
        return testo;
    }
    for (qsizetype i = 0; i < forma.size(); ++i) {
        if (forma[i] == u'#' ? !testo[i].isDigit() : testo[i] != forma[i]) {
            return testo;
        }
    }
    return forma;
}
