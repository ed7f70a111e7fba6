#include "Copione.h"

#include "base/Ansi.h"
#include "documento/FileCopia.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"

#include <QAbstractButton>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QInputDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace {

constexpr const char *Registra = "PLAKERA_REGISTRA";
constexpr qsizetype RigheMostrate = 20;

QString Testo(const QAbstractButton *bottone)
{
    return bottone == nullptr ? QStringLiteral("nessuno") : bottone->text().remove(u'&');
}

QString SuUnaRiga(const Ritratto &ritratto)
{
    QStringList voci;
    for (const auto &[nome, valore] : ritratto) {
        voci.append(nome + u'=' + valore);
    }
    return voci.join(u' ');
}

/// The new frame's name holds the minute and the second of its making.
QString SenzaOra(QString testo)
{
    static const QRegularExpression Nuova(QStringLiteral("\\bNuova\\d{2,4}\\b"));
    return testo.replace(Nuova, QStringLiteral("Nuova<ora>"));
}

/// Paths below the folder, as the system writes them, as they are in the records.
QString ConBarre(QString testo, const QString &cartella)
{
    for (qsizetype i = testo.indexOf(cartella); i >= 0; i = testo.indexOf(cartella, i)) {
        testo.replace(i, cartella.size(), QStringLiteral("<archivio>"));
        static const QRegularExpression Fine(QStringLiteral("[:»\r\n]"));
        qsizetype fine = testo.indexOf(Fine, i);
        fine = fine < 0 ? testo.size() : fine;
        testo.replace(i, fine - i, QDir::fromNativeSeparators(testo.mid(i, fine - i)));
    }
    return testo;
}

/// What opening makes of the model.
QByteArray Riaperto(Modello modello)
{
    modello.ArrotondaTutti();
    return FileModello::Componi(modello, QLocale::c());
}

/// What a user who takes the safety copy up gets; nothing from one that is not whole.
QByteArray ComeRiaperta(const QString &file)
{
    const std::optional<FileCopia::Copia> copia = FileCopia::Legge(file);
    if (!copia) {
        return {};
    }
    Modello modello;
    FileModello::Analizza(copia->corpo, modello);
    return Riaperto(std::move(modello));
}

} // namespace

QString DescrizioneRiquadro(const QDialog &dialogo)
{
    if (const auto *riquadro = qobject_cast<const QMessageBox *>(&dialogo)) {
        QStringList bottoni;
        for (const QAbstractButton *bottone : riquadro->buttons()) {
            bottoni.append(Testo(bottone));
        }
        return QStringLiteral("«%1» [%2] predefinito %3")
            .arg(riquadro->text(), bottoni.join(u'|'), Testo(riquadro->defaultButton()));
    }
    if (const auto *ingresso = qobject_cast<const QInputDialog *>(&dialogo)) {
        return QStringLiteral("«%1: %2» [%3|%4] proposta «%5»")
            .arg(ingresso->windowTitle(), ingresso->labelText(), ingresso->okButtonText(),
                 ingresso->cancelButtonText(), ingresso->textValue());
    }
    return dialogo.objectName() + QStringLiteral(" «%1»").arg(dialogo.windowTitle());
}

DialogoInScena::DialogoInScena(QDialog &dialogo, std::function<void(const QString &)> scrive)
    : dialogo_(dialogo)
    , scrive_(std::move(scrive))
    , prima_(DelDialogo(dialogo))
{
    scrive_(SuUnaRiga(prima_));
}

void DialogoInScena::Aperto() const
{
    if (!dialogo_.isVisible()) {
        QTest::qFail("the dialog has closed already", __FILE__, __LINE__);
    }
}

void DialogoInScena::Nota(const QString &azione)
{
    const Ritratto dopo = DelDialogo(dialogo_);
    const QStringList cambiate = Differenze(prima_, dopo);
    scrive_(azione + (dialogo_.isVisible() ? QString() : QStringLiteral(" (chiuso)")) +
            (cambiate.isEmpty() ? QString() : QStringLiteral(" -> ") + cambiate.join(u' ')));
    prima_ = dopo;
}

void DialogoInScena::Digita(const char *casella, const Parole &testo)
{
    Aperto();
    Controlli::Digita(dialogo_, casella, testo);
    Nota(QStringLiteral("digita %1").arg(QString::fromLatin1(casella)));
}

void DialogoInScena::Sceglie(const char *combo, const Parole &testo)
{
    Aperto();
    if (!SceglieNelCombo(dialogo_, combo, testo)) {
        QTest::qFail(qPrintable(testo + QStringLiteral(" is not in the list")), __FILE__, __LINE__);
    }
    Nota(QStringLiteral("sceglie %1").arg(QString::fromLatin1(combo)));
}

void DialogoInScena::Preme(const char *controllo)
{
    Aperto();
    Controlli::Preme(dialogo_, controllo);
    Nota(QStringLiteral("preme %1").arg(QString::fromLatin1(controllo)));
}

void DialogoInScena::DoppioClick(const char *casella)
{
    Aperto();
    QTest::mouseDClick(Trova<QWidget>(dialogo_, casella), Qt::LeftButton);
    Nota(QStringLiteral("doppio click %1").arg(QString::fromLatin1(casella)));
}

void DialogoInScena::SceglieFile(const Parole &nome)
{
    Aperto();
    auto *elenco = Trova<QListWidget>(dialogo_, "FileImmagini");
    const auto voci = elenco->findItems(nome, Qt::MatchExactly);
    if (voci.isEmpty()) {
        QTest::qFail(qPrintable(nome + QStringLiteral(" is not listed")), __FILE__, __LINE__);
        return;
    }
    elenco->scrollToItem(voci.first());
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {},
                      elenco->visualItemRect(voci.first()).center());
    Nota(QStringLiteral("sceglie il file %1").arg(nome));
}

void DialogoInScena::Chiude()
{
    QTest::keyClick(&dialogo_, Qt::Key_Escape);
    Nota(QStringLiteral("chiude"));
}

Copione::Copione(const Parole &nome)
    : nome_(nome)
    , robot_(std::make_unique<Robot>())
{
}

void Copione::Scrive(const QString &riga)
{
    verbale_.append(Pulito(riga));
}

QString Copione::Pulito(QString testo) const
{
    const QString cartella =
        QDir::cleanPath(Posto.Archivio.Stato().CartellaModelli + QStringLiteral("../.."));
    testo.replace(cartella, QStringLiteral("<archivio>"));
    testo = ConBarre(testo, QDir::toNativeSeparators(cartella));
    testo.replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
    return SenzaOra(testo);
}

QStringList Copione::RigheModello() const
{
    Modello modello = Posto.Aperto();
    for (int i = 1; i <= modello.UltimoSlot(Genere::Campo); ++i) {
        Campo &campo = modello.Campi[i];
        campo.Testo = SenzaCifreACaso(campo.Testo, campo);
    }
    QStringList righe =
        Ansi::DaByte(FileModello::Componi(modello, QLocale::c())).split(QStringLiteral("\r\n"));
    for (QString &riga : righe) {
        riga = Pulito(riga);
    }
    return righe;
}

/// What the file and the safety copy hold.
QString Copione::Disco() const
{
    const QByteArray ora = Posto.DaSalvare();
    QString file = QStringLiteral("assente");
    if (QFile::exists(Posto.Archivio.Percorso())) {
        file = Posto.Archivio.ByteDelFile() == ora ? QStringLiteral("come il modello")
                                                   : QStringLiteral("diverso dal modello");
    }
    QString copia = QStringLiteral("nessuna");
    QDirIterator copie(Posto.Archivio.CartellaStato(), {QStringLiteral("*.recupero")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (copie.hasNext()) {
        copia = ComeRiaperta(copie.next()) == Riaperto(Posto.Aperto())
                    ? QStringLiteral("come il modello")
                    : QStringLiteral("diversa dal modello");
    }
    return QStringLiteral("file %1, copia di recupero %2").arg(file, copia);
}

void Copione::ScriveVeduta(bool elenca)
{
    Ritratto dopo = DelleFinestre(Posto);
    dopo.append({QStringLiteral("disco"), Disco()});
    dopo.append({QStringLiteral("chiuso"), QString::number(chiusure_)});
    for (auto &[nome, valore] : dopo) {
        valore = Pulito(valore);
    }
    const QStringList righe = RigheModello();
    if (elenca) {
        for (const QString &cambiata : Differenze(veduta_, dopo)) {
            Scrive(QStringLiteral("  ") + cambiata);
        }
        for (const QString &cambiata : RigheCambiate(modello_, righe)) {
            Scrive(QStringLiteral("  Mod ") + cambiata);
        }
    }
    veduta_ = dopo;
    modello_ = righe;
}

void Copione::ApreFile(const QString &passo, bool scrive, bool elenca)
{
    Scrive(QStringLiteral("== %1. %2").arg(++passi_).arg(passo));
    const bool aperto = scrive ? Posto.ApreAttiva() : Posto.RiapreAttiva();
    if (!robot_->Soddisfatto()) {
        QTest::qFail(qPrintable(passo + QStringLiteral(": ") + robot_->Testi().join(u'|')),
                     __FILE__, __LINE__);
    }
    robot_ = std::make_unique<Robot>();
    if (!aperto) {
        Scrive(QStringLiteral("  non si apre"));
        return;
    }
    QObject::connect(Posto.Editor.get(), &Form2::Chiuso, Posto.Editor.get(),
                     [this] { ++chiusure_; });
    ScriveVeduta(elenca);
}

void Copione::Apre(const Parole &passo)
{
    ApreFile(passo, true, true);
}

void Copione::Riapre(const Parole &passo)
{
    ApreFile(passo, false, true);
}

void Copione::ApreSenzaElenco()
{
    ApreFile(QStringLiteral("apre"), true, false);
}

void Copione::Passo(const Parole &nome, const std::function<void()> &azione)
{
    if (!Posto.Editor || Posto.Editor->Anteprima() == nullptr) {
        qFatal("a step without an open model");
    }
    Scrive(QStringLiteral("== %1. %2").arg(++passi_).arg(nome));
    azione();
    // What a command leaves for later belongs to its step.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    if (!robot_->Soddisfatto()) {
        QTest::qFail(qPrintable(nome + QStringLiteral(": ") + robot_->Testi().join(u'|')), __FILE__,
                     __LINE__);
    }
    robot_ = std::make_unique<Robot>();
    ScriveVeduta();
}

void Copione::Risponde(const QString &detto, std::function<void(QDialog *)> azione)
{
    robot_->Agisce([this, detto, azione = std::move(azione)](QDialog *dialogo) {
        Scrive(QStringLiteral("  ? ") + DescrizioneRiquadro(*dialogo) + QStringLiteral(" <- ") +
               detto);
        azione(dialogo);
    });
}

namespace {

std::function<void(QDialog *)> Bottone(QMessageBox::StandardButton quale)
{
    return [quale](QDialog *dialogo) {
        auto *riquadro = qobject_cast<QMessageBox *>(dialogo);
        if (riquadro == nullptr || riquadro->button(quale) == nullptr) {
            QTest::qFail("a box without the button that should answer it", __FILE__, __LINE__);
            dialogo->done(QDialog::Rejected);
            return;
        }
        riquadro->button(quale)->click();
    };
}

} // namespace

void Copione::Si()
{
    Risponde(QStringLiteral("Sì"), Bottone(QMessageBox::Yes));
}

void Copione::No()
{
    Risponde(QStringLiteral("No"), Bottone(QMessageBox::No));
}

void Copione::Ok()
{
    Risponde(QStringLiteral("OK"), Bottone(QMessageBox::Ok));
}

void Copione::DigitaRisposta(const Parole &testo)
{
    Risponde(QStringLiteral("«%1»").arg(testo), [testo](QDialog *dialogo) {
        auto *ingresso = qobject_cast<QInputDialog *>(dialogo);
        if (ingresso == nullptr) {
            QTest::qFail("a text for a box that takes none", __FILE__, __LINE__);
            dialogo->done(QDialog::Rejected);
            return;
        }
        ingresso->setTextValue(testo);
        ingresso->accept();
    });
}

void Copione::Annulla()
{
    Risponde(QStringLiteral("Annulla"), [](QDialog *dialogo) { dialogo->reject(); });
}

void Copione::Dialogo(std::function<void(DialogoInScena &)> azione)
{
    Risponde(QStringLiteral("si lavora"), [this, azione = std::move(azione)](QDialog *dialogo) {
        DialogoInScena scena(
            *dialogo, [this](const QString &riga) { Scrive(QStringLiteral("    ") + riga); });
        azione(scena);
        if (dialogo->isVisible()) {
            scena.Chiude();
        }
    });
}

void Copione::AltroDialogo(std::function<void(QDialog *)> azione)
{
    Risponde(QStringLiteral("si lavora"), std::move(azione));
}

void Copione::Confronta()
{
    if (Posto.Editor && Posto.Editor->isVisible()) {
        Posto.DimenticaVariazioni(); // nobody is asked when the windows are taken down
    }
    const QString percorso =
        QStringLiteral(CARTELLA_COMPORTAMENTO "/") + nome_ + QStringLiteral(".txt");
    const QByteArray adesso = verbale_.join(u'\n').toUtf8() + '\n';
    if (qEnvironmentVariableIntValue(Registra) == 1) {
        ScriveFile(percorso, adesso);
        QFAIL(qPrintable(QStringLiteral("recorded, not compared: ") + percorso));
    }
    const QStringList atteso = QString::fromUtf8(ByteDi(percorso)).chopped(1).split(u'\n');
    const auto [a, v] =
        std::mismatch(atteso.begin(), atteso.end(), verbale_.begin(), verbale_.end());
    if (a == atteso.end() && v == verbale_.end()) {
        return;
    }
    const qsizetype riga = a - atteso.begin();
    qsizetype passo = qMin(riga, verbale_.size() - 1);
    while (passo > 0 && !verbale_[passo].startsWith(QStringLiteral("=="))) {
        --passo;
    }
    QFAIL(qPrintable(QStringLiteral("%1, line %2, in the step %3\nrecorded:\n%4\nnow:\n%5")
                         .arg(percorso)
                         .arg(riga + 1)
                         .arg(verbale_.value(passo), atteso.mid(riga, RigheMostrate).join(u'\n'),
                              verbale_.mid(riga, RigheMostrate).join(u'\n'))));
}
