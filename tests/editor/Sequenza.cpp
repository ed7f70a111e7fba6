#include "Sequenza.h"

#include "Confronti.h"

#include "preview/Controlli.h"

#include <QComboBox>
#include <QInputDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>

namespace {

constexpr int PassiMinimi = 30;
constexpr int PassiMassimi = 100;
constexpr int ElementiMassimi = 30;
constexpr int RiquadriMassimi = 30; // of one command

} // namespace

Sequenza::Sequenza(unsigned seme)
    : generatore_(seme)
{
    passi_ = PassiMinimi + Numero(PassiMassimi - PassiMinimi + 1);
}

Sequenza::~Sequenza() = default;

int Sequenza::Numero(int quanti)
{
    // The library's distributions differ from one compiler to the next.
    return static_cast<int>(generatore_() % static_cast<unsigned>(quanti));
}

Genere Sequenza::UnGenere()
{
    return Generi.at(static_cast<std::size_t>(Numero(static_cast<int>(Generi.size()))));
}

int Sequenza::UnaVoce(Genere genere)
{
    return Numero(Posto.Aperto().UltimoSlot(genere) + 1);
}

double Sequenza::Millimetri(int da, int a)
{
    constexpr int Quarti = 4;
    return da + Numero((a - da) * Quarti + 1) / double(Quarti);
}

QString Sequenza::TestoMillimetri()
{
    return Volte(12) ? Uno<QString>({{}, QStringLiteral("dieci"), QStringLiteral("1 2")})
                     : QString::number(Millimetri(-20, 260));
}

QString Sequenza::UnNome()
{
    const QString radice =
        Uno<QString>({QStringLiteral("Data"), QStringLiteral("R_Quantità"), QStringLiteral("r_x"),
                      QStringLiteral("Città €"), QStringLiteral("R_")});
    // Now and then a name that another element may have.
    return Volte(8) ? radice : radice + QString::number(++nomi_);
}

QString Sequenza::UnTesto()
{
    return Uno<QString>({QStringLiteral("Data"), QStringLiteral("12.345,67"), QStringLiteral("0"),
                         QStringLiteral("Città € perché"), QStringLiteral("x"), QString()});
}

void Sequenza::RiempieCampi()
{
    ArchivioDiProva &a = Posto.Archivio;
    for (int k = Numero(ElementiMassimi); k > 0; --k) {
        const int n = a.AggiungeCampo(UnNome() + QStringLiteral("c%1").arg(k), Millimetri(-20, 250),
                                      Millimetri(-20, 360));
        Campo &campo = a.DaAprire().Campi[n];
        campo.Testo = UnTesto();
        campo.Font = Uno<QString>({QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
        campo.Dimensione = static_cast<qint16>(6 + Numero(35));
        campo.Grassetto = Volte(3) ? Vero : Falso;
        campo.MascheraDefault =
            Uno<QString>({QStringLiteral("$$$$$$$$$$"), QStringLiteral("###.###,###"),
                          QStringLiteral("#,"), QStringLiteral("altra")});
        campo.Maschera = Volte(5) ? QStringLiteral("No") : campo.MascheraDefault;
    }
}

void Sequenza::RiempieCornici()
{
    ArchivioDiProva &a = Posto.Archivio;
    for (int k = Numero(ElementiMassimi); k > 0; --k) {
        const int n =
            a.AggiungeCornice(QStringLiteral("Cornice%1").arg(k), Millimetri(-20, 250),
                              Millimetri(-20, 360), Millimetri(0, 90), Millimetri(-2, 60));
        Cornice &cornice = a.DaAprire().Cornici[n];
        cornice.Testo = UnTesto();
        cornice.Font = Volte(10) ? QStringLiteral("Sconosciuto") : QStringLiteral("Arial");
        cornice.Dimensione = static_cast<qint16>(6 + Numero(35));
        cornice.Bordo = Uno({0.0, 0.5, 1.0, 1.3, 2.0, 2.7, 3.0});
        cornice.ColoreCornice = static_cast<qint16>(Numero(16));
        cornice.ColoreTesto = static_cast<qint16>(Numero(16));
    }
}

void Sequenza::RiempieImmagini()
{
    ArchivioDiProva &a = Posto.Archivio;
    ScriveImmagine(a, "piccola.bmp", {100, 80});
    ScriveImmagine(a, "logo.bmp", {300, 200}, 0x008000);
    ScriveImmagine(a, "grande.bmp", {2500, 1000}, 0x0000ff);
    for (int k = Numero(ElementiMassimi); k > 0; --k) {
        const QString nome = k == 1   ? QStringLiteral("logo.bmp")
                             : k == 2 ? QStringLiteral("piccola.bmp")
                                      : QStringLiteral("manca%1.gif").arg(k);
        a.AggiungeImmagine(nome, Millimetri(-20, 250), Millimetri(-20, 360), Millimetri(0, 90),
                           Millimetri(0, 60));
    }
}

void Sequenza::RiempieModello()
{
    RiempieCampi();
    RiempieCornici();
    RiempieImmagini();
    Modello &modello = Posto.Archivio.DaAprire();
    modello.Tipo = UnTesto();
    modello.Righe = {Millimetri(50, 200), Millimetri(50, 300), Millimetri(1, 12), Millimetri(0, 9),
                     UnTesto()};
    modello.Sfondo = {
        Volte(2) ? QString()
                 : Posto.Archivio.Stato().CartellaModelli +
                       Uno<QString>({QStringLiteral("grande.bmp"), QStringLiteral("assente.bmp")}),
        TestoMillimetri(),
        TestoMillimetri(),
        TestoMillimetri(),
        TestoMillimetri(),
        static_cast<qint16>(Numero(3))};
}

bool Sequenza::Previsto(const QString &messaggio)
{
    static const QRegularExpression Previsti(QRegularExpression::anchoredPattern(QStringLiteral(
        "nome già esistente|immagine già esistente|Testo di prova più lungo della maschera"
        "|non si può .*|Colore errato|Colore cornice errato|Nome: non può essere vuoto"
        "|.*: manca il numero|.*: «.*» non è un numero|non è stata selezionata un immagine"
        "|font .* non esistente: verrà impostato Arial|Font: nessuno scelto"
        "|impossibile caricare l'immagine di sfondo [^\\n]*\\nerrore 53[^\\n]*"
        "|Elimino .*|salvare le variazioni|non c'è posto per (?s:.*)"
        "|Impostare la % di riduzione delle dimensioni dell'immagine"
        "|FrmCampo|FrmCornice|FrmImmagine")));
    return Previsti.match(messaggio).hasMatch();
}

QString Sequenza::Apre()
{
    RiempieModello();
    const QString guasto = Esegue(QStringLiteral("apre"), [this] {
        if (!Posto.ApreAttiva()) {
            diario_.append(QStringLiteral("non si apre"));
        }
    });
    if (!guasto.isEmpty() || Posto.Editor->Anteprima() == nullptr) {
        return guasto + QStringLiteral(" (the model does not open)");
    }
    allInizio_ = std::make_unique<StatoVisto>(StatoVisto::Di(Posto));
    return {};
}

QString Sequenza::Esegue(const QString &nome, const std::function<void()> &azione)
{
    diario_.append(nome);
    Robot robot;
    for (int k = 0; k < RiquadriMassimi; ++k) {
        robot.Agisce([this](QDialog *dialogo) { Risponde(dialogo); });
    }
    azione();
    QCoreApplication::processEvents();
    for (const QString &testo : robot.Testi()) {
        diario_.append(QStringLiteral("    ? ") + testo);
        if (!Previsto(testo)) {
            return QStringLiteral("unexpected box: ") + testo;
        }
    }
    if (robot.Testi().size() >= RiquadriMassimi) {
        return QStringLiteral("a command that does not stop asking");
    }
    return ManigliaFuoriVista();
}

void Sequenza::Risponde(QDialog *dialogo)
{
    if (auto *riquadro = qobject_cast<QMessageBox *>(dialogo)) {
        QAbstractButton *si = riquadro->button(QMessageBox::Yes);
        const bool conferma = si == nullptr || !Volte(3);
        (si == nullptr ? riquadro->button(QMessageBox::Ok)
         : conferma    ? si
                       : riquadro->button(QMessageBox::No))
            ->click();
    } else if (auto *ingresso = qobject_cast<QInputDialog *>(dialogo)) {
        if (Volte(4)) {
            ingresso->reject();
        } else {
            ingresso->setTextValue(Uno<QString>({QStringLiteral("50"), QStringLiteral("0"),
                                                 QStringLiteral("12.5"), QStringLiteral("poco")}));
            ingresso->accept();
        }
    } else {
        Lavora(*dialogo);
    }
}

QString Sequenza::Comando()
{
    static constexpr struct
    {
        const char *nome;
        int peso;
        void (Sequenza::*azione)();
    } Vocabolario[] = {
        {"aggiunge", 4, &Sequenza::Aggiunge},     {"modifica", 14, &Sequenza::Modifica},
        {"sul foglio", 26, &Sequenza::SulFoglio}, {"scelta", 20, &Sequenza::Scelta},
        {"righe", 5, &Sequenza::Righe},           {"spostamento", 5, &Sequenza::Spostamento},
        {"sfondo", 7, &Sequenza::Sfondo},         {"vista", 8, &Sequenza::Vista},
        {"salva", 2, &Sequenza::Salva},           {"storia", 8, &Sequenza::Storia},
    };
    int pesi = 0;
    for (const auto &voce : Vocabolario) {
        pesi += voce.peso;
    }
    int estratto = Numero(pesi);
    for (const auto &voce : Vocabolario) {
        estratto -= voce.peso;
        if (estratto < 0) {
            return Esegue(QString::fromLatin1(voce.nome), [&] { (this->*voce.azione)(); });
        }
    }
    return {};
}

void Sequenza::Aggiunge()
{
    Posto.Preme(NomeAggiungi(UnGenere()));
}

void Sequenza::Modifica()
{
    const Genere genere = UnGenere();
    const int i = UnaVoce(genere);
    diario_.append(QStringLiteral("  genere %1, voce %2").arg(int(genere)).arg(i));
    const bool dallElenco = Volte(2);
    const Controllo *elemento = i == 0 ? nullptr : Posto.Elemento(genere, i);
    if (dallElenco || elemento == nullptr || !elemento->isVisible()) {
        Posto.SceglieVoce(genere, i);
        Posto.Preme(NomeModifica(genere));
    } else if (const QPointF mezzo = Posto.Mezzo(genere, i); Posto.SulFoglio(mezzo)) {
        if (Volte(2)) {
            Posto.Clicca(mezzo, Qt::RightButton);
        } else {
            Posto.CliccaDueVolte(mezzo);
        }
    }
}

void Sequenza::SulFoglio()
{
    const Genere genere = UnGenere();
    const int i = UnaVoce(genere);
    const Controllo *elemento = i == 0 ? nullptr : Posto.Elemento(genere, i);
    const QPointF mezzo = elemento == nullptr ? QPointF(5, 5) : Posto.Mezzo(genere, i);
    const QPointF di(Millimetri(-60, 60), Millimetri(-60, 60));
    diario_.append(QStringLiteral("  genere %1, elemento %2, di %3 %4")
                       .arg(int(genere))
                       .arg(i)
                       .arg(di.x())
                       .arg(di.y()));
    if (!Posto.SulFoglio(mezzo)) {
        return;
    }
    Posto.Sorvola(mezzo);
    if (Volte(4)) {
        return;
    }
    Posto.Clicca(mezzo);
    if (Volte(2)) {
        Posto.TrascinaManiglia(genere, Volte(6) ? di * 20 : di);
    } else if (elemento != nullptr && elemento->isVisible()) {
        Posto.TiraBordo(genere, i, Uno({Bordo::Destra, Bordo::Basso, Bordo::Angolo}),
                        Volte(6) ? di * 20 : di);
    }
}

void Sequenza::Righe()
{
    if (Volte(2)) {
        Posto.Preme("OptSimuloRighe");
        return;
    }
    for (const char *casella : {"yInizio", "yFine", "InterlineaDescr"}) {
        if (Volte(2)) {
            Posto.Digita(casella, TestoMillimetri());
        }
    }
    if (Volte(2)) {
        Posto.Digita("Interlinea", QString::number(Millimetri(0, 15)));
    }
    if (Volte(2)) {
        Posto.Digita("SeguePag", UnTesto());
    }
    Posto.Preme("ConfermaPosizioneRighe");
}

void Sequenza::Spostamento()
{
    Posto.Digita("Spostamento", TestoMillimetri());
    Posto.Preme(Uno({"OptDx", "OptSx", "OptSu", "OptGiu"}));
    Posto.Preme(Uno({"Command2", "Command5", "Command6"}));
}

void Sequenza::Sfondo()
{
    switch (Numero(6)) {
    case 0:
        Posto.Preme("VisualizzaImmagineSfondo");
        break;
    case 1:
        Posto.Preme("VisualizzaImmagineSfondo", Qt::RightButton);
        break;
    case 2:
        Posto.Preme("Command8");
        break;
    case 3:
        Posto.Digita("SfondoFileImmagine",
                     Posto.Archivio.Stato().CartellaModelli +
                         Uno<QString>({QStringLiteral("logo.bmp"), QStringLiteral("assente.bmp")}),
                     true);
        break;
    case 4:
        Posto.Digita(Uno({"SfondoXimmagine", "SfondoYImmagine", "SfondoXPosImm", "SfondoYPosImm"}),
                     TestoMillimetri(), true);
        break;
    default:
        Posto.Preme(Uno({"SfondoSpostaSx", "SfondoSpostaDx", "SfondoSpostaSu", "SfondoSpostaGiu"}));
    }
}

void Sequenza::Vista()
{
    switch (Numero(6)) {
    case 0:
        Posto.Zoom(Uno({"1", "1.5", "2", "2.5", "3", "0.2", "9", "x"}));
        break;
    case 1:
        Posto.Scorre(Numero(240), Numero(350));
        break;
    case 2:
        Posto.Pagina(Numero(6));
        break;
    case 3:
        Posto.Preme(Uno({"Command1", "Command3", "Command4"}));
        break;
    case 4: {
        const Genere genere = UnGenere();
        Posto.SceglieVoce(genere, UnaVoce(genere));
        Posto.FuocoAlleVoci(genere);
        break;
    }
    default:
        Posto.Digita("Tipo", UnTesto(), true);
    }
}

void Sequenza::Salva()
{
    Posto.Preme("Salva");
    if (!Posto.Variato() && Posto.Archivio.ByteDelFile() != Posto.DaSalvare()) {
        QTest::qFail("the file is not what was saved", __FILE__, __LINE__);
    }
}

void Sequenza::Storia()
{
    for (int k = 1 + Numero(4); k > 0; --k) {
        Posto.Preme(Uno({"Annulla", "Ripristina"}));
    }
}

QString Sequenza::ManigliaFuoriVista() const
{
    for (const Genere genere : Generi) {
        const Chiave attivo{genere, Posto.Archivio.Stato().selezione.Attivo(genere)};
        if (attivo.indice != 0 && !Posto.Archivio.Stato().documento.InVista(attivo)) {
            return QStringLiteral("a handle on %1 %2, which is not in view")
                .arg(NomeDi(genere))
                .arg(attivo.indice);
        }
    }
    return {};
}

QString Sequenza::Chiude()
{
    const bool cornici = Volte(2);
    const QString guasto = Esegue(QStringLiteral("chiude"), [&] {
        if (cornici) {
            Posto.Preme("Command7");
        } else {
            Posto.ChiudeFinestra(Posto.Finestra());
        }
    });
    if (!guasto.isEmpty()) {
        return guasto;
    }
    if (Posto.Finestra().isVisible()) {
        Posto.DimenticaVariazioni(); // the question about all frames was answered with No
        return cornici ? QString() : QStringLiteral("the editor stays open");
    }
    const QString riaperto = Esegue(QStringLiteral("riapre"), [this] { Posto.RiapreAttiva(); });
    if (riaperto.isEmpty() && Posto.Editor->Anteprima() == nullptr) {
        return QStringLiteral("the model does not open again");
    }
    return riaperto;
}
