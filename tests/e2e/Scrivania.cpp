#include "Scrivania.h"

#include "support/CodaDiStampa.h"
#include "support/LettorePdf.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

#include <csignal>
#include <stdexcept>

const QString Scrivania::TitoloInizio = QStringLiteral("^Plakera - Modelli stampa");
const QString Scrivania::TitoloEditor = QStringLiteral("^Plakera: Modello ");
const QString Scrivania::TitoloAnteprima = QStringLiteral("^Anteprima Plakera$");
const QString Scrivania::TitoloRiquadro = QStringLiteral("^Plakera$");
const QString Scrivania::TitoloCampo = QStringLiteral("^Modifica impostazioni Campo$");
const QString Scrivania::TitoloCornice = QStringLiteral("^Modifica impostazioni Cornice");
const QString Scrivania::TitoloImmagine = QStringLiteral("^Modifica impostazioni Immagine$");

namespace {

constexpr double PixelPerMillimetro = 96 / 25.4;

void Pretende(bool vale, const QString &altrimenti)
{
    if (!vale) {
        throw std::runtime_error(altrimenti.toStdString());
    }
}

void CopiaCartella(const QString &da, const QString &a)
{
    QDirIterator file(da, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString copia = a + file.next().mid(da.size());
        Pretende(QDir().mkpath(QFileInfo(copia).path()) && QFile::copy(file.filePath(), copia) &&
                     QFile::setPermissions(copia, QFile::ReadOwner | QFile::WriteOwner),
                 QStringLiteral("cannot copy ") + file.filePath());
    }
}

} // namespace

Scrivania::Scrivania(QSize pixel, double scala)
    : schermo_(std::make_unique<Schermo>(pixel))
    , scala_(scala)
    , ambiente_(QProcessEnvironment::systemEnvironment())
{
    CopiaCartella(QStringLiteral(CARTELLA_CAMPIONE), Dati());
    const QString esecuzione = In(QStringLiteral("esecuzione"));
    for (const QString &cartella : {Impostazioni(), Stato(), esecuzione}) {
        Pretende(QDir().mkpath(cartella), QStringLiteral("cannot make ") + cartella);
    }
    QFile::setPermissions(esecuzione, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile vastrel(Impostazioni() + QStringLiteral("/vastrel.ini"));
    Pretende(vastrel.open(QIODevice::WriteOnly), vastrel.errorString());
    vastrel.write("[INI]\ndirtxt=" + Dati().toUtf8() + '\n');

    ambiente_.insert(QStringLiteral("DISPLAY"), schermo_->Nome());
    ambiente_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    ambiente_.insert(QStringLiteral("HOME"), dir_.path());
    ambiente_.insert(QStringLiteral("XDG_CONFIG_HOME"), Impostazioni());
    ambiente_.insert(QStringLiteral("XDG_STATE_HOME"), Stato());
    ambiente_.insert(QStringLiteral("XDG_RUNTIME_DIR"), esecuzione);
    ambiente_.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // No printer of the machine: those of a test come from its own server.
    ambiente_.insert(QStringLiteral("CUPS_SERVER"), In(QStringLiteral("nessuno")));
    for (const char *nome :
         {"WAYLAND_DISPLAY", "QT_SCALE_FACTOR", "LPDEST", "PRINTER", "DBUS_SESSION_BUS_ADDRESS"}) {
        ambiente_.remove(QString::fromLatin1(nome));
    }
    if (scala_ != 1) {
        ambiente_.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scala_));
    }
}

Scrivania::~Scrivania()
{
    if (programma_ && programma_->state() != QProcess::NotRunning) {
        Uccide();
    }
    programma_.reset();
}

std::unique_ptr<QProcess> Scrivania::Nuovo(const QStringList &argomenti) const
{
    auto programma = std::make_unique<QProcess>();
    programma->setProcessEnvironment(ambiente_);
    LegaAllaProva(*programma);
    programma->start(QStringLiteral(PROGRAMMA), argomenti);
    Pretende(programma->waitForStarted(), programma->errorString());
    return programma;
}

void Scrivania::Avvia(const QStringList &argomenti)
{
    programma_ = Nuovo(argomenti);
}

int Scrivania::EsitoDi(QProcess &programma)
{
    AttendeChe(QStringLiteral("the end of the program"),
               [&] { return programma.waitForFinished(0) || programma.state() == 0; });
    return programma.exitStatus() == QProcess::NormalExit ? programma.exitCode() : -1;
}

void Scrivania::Uccide()
{
    programma_->kill();
    programma_->waitForFinished();
}

void Scrivania::CollegaStampante(const CodaDiStampa &coda)
{
    ambiente_.insert(QStringLiteral("CUPS_SERVER"), coda.Server());
}

void Scrivania::SceglieModello(const QString &nome)
{
    schermo_->Attende(TitoloInizio);
    const QStringList file =
        QDir(CartellaModelli())
            .entryList({QStringLiteral("*.mod")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    const auto posto = file.indexOf(nome + QStringLiteral(".Mod"));
    Pretende(posto >= 0, QStringLiteral("no model ") + nome);
    schermo_->Tasti({QStringLiteral("End"), QStringLiteral("Home")});
    schermo_->Tasto(QStringLiteral("Down"), static_cast<int>(posto));
    schermo_->Tasti({QStringLiteral("alt+a")});
}

void Scrivania::ApreModello(const QString &nome)
{
    SceglieModello(nome);
    schermo_->Attende(TitoloEditor + nome + QStringLiteral("\\.Mod$"));
    AttendeFoglio();
}

void Scrivania::AttendeFoglio()
{
    schermo_->Attende(TitoloEditor); // it takes the keys last
    zoom_ = 1;
    CercaFoglio();
}

void Scrivania::CercaFoglio()
{
    const QRect finestra = Anteprima().Interno;
    // At rest the sheet's corner is where the rulers end, and its margin is empty but for the lines
    // of focus and paper along its edges.
    constexpr int Rigo = 25; // of the program's pixels, as thick as a ruler
    constexpr int Lato = 12;
    const int fuori = qRound(Rigo * scala_);
    origine_ = finestra.topLeft() + QPoint(fuori, fuori);
    AttendeChe(QStringLiteral("the sheet on the preview"), [&] {
        const QImage foto = schermo_->Foto();
        const QPoint dentro = origine_ + QPoint(4, 4) * scala_;
        for (int i = 0; i < Lato; ++i) {
            if ((foto.pixel(dentro + QPoint(i, 0)) & 0xFFFFFF) != 0xFFFFFF ||
                (foto.pixel(dentro + QPoint(0, i)) & 0xFFFFFF) != 0xFFFFFF) {
                return false;
            }
        }
        return true;
    });
}

void Scrivania::ChiudeEditor()
{
    Editor();
    schermo_->Tasti({QStringLiteral("alt+F4")});
    schermo_->Attende(TitoloInizio);
}

void Scrivania::ChiudeInizio()
{
    schermo_->Attende(TitoloInizio);
    schermo_->Tasti({QStringLiteral("alt+F4")});
}

void Scrivania::Pagina(int pagina)
{
    Editor();
    // From the box "Tipo" over the help icon to the tabs, there to the first one.
    schermo_->Tasti({QStringLiteral("alt+p"), QStringLiteral("Tab"), QStringLiteral("Tab")});
    schermo_->Tasto(QStringLiteral("Left"), 5);
    schermo_->Tasto(QStringLiteral("Right"), pagina);
}

void Scrivania::Salva()
{
    const auto prima = FileDeiModelli();
    Editor();
    schermo_->Tasti({QStringLiteral("alt+v")});
    schermo_->Attende(TitoloRiquadro);
    schermo_->Tasti({QStringLiteral("alt+s")});
    schermo_->Attende(TitoloEditor);
    // The question goes before the file is written; a new one then stands in the old one's place.
    AttendeChe(QStringLiteral("the saved file"), [&] { return FileDeiModelli() != prima; });
}

QHash<QString, quint64> Scrivania::FileDeiModelli() const
{
    QHash<QString, quint64> file;
    QDirIterator modelli(Dati(), {QStringLiteral("*.mod")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (modelli.hasNext()) {
        const QString percorso = modelli.next();
        struct stat stato
        {
        };
        if (stat(QFile::encodeName(percorso).constData(), &stato) == 0) {
            file.insert(percorso, stato.st_ino);
        }
    }
    return file;
}

LettorePdf Scrivania::StampaInCoda(CodaDiStampa &coda)
{
    Editor();
    schermo_->Tasti({QStringLiteral("alt+t")});
    schermo_->Attende(TitoloRiquadro);
    schermo_->Tasti({QStringLiteral("alt+n")});
    schermo_->Attende(TitoloEditor);
    return UnicoFoglio(coda);
}

LettorePdf Scrivania::UnicoFoglio(CodaDiStampa &coda)
{
    QStringList fogli;
    AttendeChe(QStringLiteral("the printed sheet"), [&] {
        fogli += coda.Fogli();
        return !fogli.isEmpty();
    });
    Pretende(fogli.size() == 1, QStringLiteral("more than one sheet"));
    return LettorePdf(fogli.first());
}

LettorePdf Scrivania::StampaInPdf(const QString &modello) const
{
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const auto programma =
        Nuovo({QStringLiteral("--modello"), CartellaModelli() + modello + QStringLiteral(".Mod"),
               QStringLiteral("--pdf"), pdf});
    Pretende(EsitoDi(*programma) == 0, QString::fromUtf8(programma->readAllStandardError()));
    return LettorePdf(pdf);
}

void Scrivania::Zoom(const QString &scala)
{
    // The zoom box stands in the strip below the sheet, which has the keys at first.
    constexpr QPointF DallAngolo(310, -10);
    const QRect finestra = Anteprima().Interno;
    schermo_->Clic(finestra.bottomLeft() + (DallAngolo * scala_).toPoint());
    schermo_->Tasti({QStringLiteral("ctrl+a")});
    schermo_->Scrive(scala);
    zoom_ = scala.toDouble();
}

QPoint Scrivania::SulFoglio(QPointF millimetri) const
{
    return origine_ + QPoint(qRound(Pixel(millimetri.x())), qRound(Pixel(millimetri.y())));
}

double Scrivania::Pixel(double millimetri) const
{
    return millimetri / zoom_ * PixelPerMillimetro * scala_;
}

void Scrivania::Trascina(QPoint da, QPoint a, const QString &tasto) const
{
    QList<QPoint> punti;
    constexpr int Passi = 8;
    for (int i = 0; i <= Passi; ++i) {
        punti.append(da + (a - da) * i / Passi);
    }
    schermo_->Trascina(punti, tasto);
}

void Scrivania::PuntaCampo(QPointF millimetri)
{
    Anteprima();
    const QPoint punto = SulFoglio(millimetri);
    int passo = 0;
    schermo_->AttendeQui(QStringLiteral("a field that lights up"), [&] {
        schermo_->Sposta(punto + QPoint(passo++ % 2, 0));
        const QImage foto = schermo_->Foto();
        constexpr int Intorno = 12;
        for (int dy = -Intorno; dy <= Intorno; ++dy) {
            for (int dx = -Intorno; dx <= Intorno; ++dx) {
                const QRgb colore = foto.pixel(punto + QPoint(dx, dy));
                if (qBlue(colore) > 200 && qRed(colore) < 90 && qGreen(colore) < 90) {
                    return true;
                }
            }
        }
        return false;
    });
}

void Scrivania::TrascinaCampo(QPointF campo, QPointF a, const QString &tasto)
{
    // The text itself, past the handle that will appear at its corner.
    constexpr QPointF SulTesto(8, 2);
    PuntaCampo(campo + SulTesto);
    const QPoint maniglia(qRound(2 * scala_), qRound(2 * scala_));
    Trascina(SulFoglio(campo) + maniglia, SulFoglio(a), tasto);
}

void Scrivania::TrascinaSulFoglio(QPointF da, QPointF a) const
{
    Trascina(SulFoglio(da), SulFoglio(a));
}

void Scrivania::SceglieCampo(QPointF millimetri)
{
    PuntaCampo(millimetri);
    const QPoint punto = SulFoglio(millimetri);
    // The colour of the outlines, in the field's own line.
    const auto contornati = [&] {
        constexpr QRgb Viola = 0x7A1FA2;
        const QSize intorno(qRound(60 * scala_), qRound(24 * scala_));
        const QImage foto = schermo_->Foto().copy(
            QRect(punto - QPoint(intorno.width() / 2, intorno.height() / 2), intorno));
        int quanti = 0;
        for (int y = 0; y < foto.height(); ++y) {
            for (int x = 0; x < foto.width(); ++x) {
                quanti += (foto.pixel(x, y) & 0xFFFFFF) == Viola ? 1 : 0;
            }
        }
        return quanti;
    };
    const int prima = contornati();
    schermo_->Tenendo(QStringLiteral("ctrl"), [&] { schermo_->Clic(punto); });
    schermo_->AttendeQui(QStringLiteral("another outline"), [&] { return contornati() != prima; });
}

void Scrivania::AllargaCornice(QPointF dentro, QPointF bordo, int pixel)
{
    Anteprima();
    schermo_->Clic(SulFoglio(dentro));
    const QPoint presa = SulFoglio(bordo) - QPoint(qRound(scala_), 0);
    schermo_->Sposta(presa);
    Trascina(presa, presa + QPoint(qRound(pixel * scala_), 0));
}

Schermo::Finestra Scrivania::ProprietaCampo(QPointF millimetri)
{
    PuntaCampo(millimetri);
    schermo_->Clic(SulFoglio(millimetri), 3);
    return schermo_->Attende(TitoloCampo);
}

Schermo::Finestra Scrivania::ProprietaCornice(QPointF millimetri)
{
    Anteprima();
    schermo_->Clic(SulFoglio(millimetri), 3);
    return schermo_->Attende(TitoloCornice);
}

Schermo::Finestra Scrivania::ProprietaImmagine(QPointF millimetri)
{
    Anteprima();
    schermo_->Clic(SulFoglio(millimetri), 3);
    return schermo_->Attende(TitoloImmagine);
}
