#include "fuzz/Pretende.h"

#include "grafica/IntestazioneImmagine.h"
#include "grafica/MarcatoriJpeg.h"
#include "grafica/SeparazioniJpeg.h"

#include <QBuffer>

namespace {

/// The file without black, and the one of black alone, differ from it only in their tables.
void ProvaSeparazioni(const QByteArray &byte, const IntestazioneImmagine &intestazione)
{
    for (const QByteArray &parte : {SeparazioniJpeg::SenzaNero(byte, intestazione),
                                    SeparazioniJpeg::SoloNero(byte, intestazione)}) {
        PRETENDE(parte.size() > byte.size() && parte.size() < byte.size() + 300);
        QBuffer file;
        file.setData(parte);
        PRETENDE(file.open(QIODevice::ReadOnly));
        const IntestazioneImmagine riletta = IntestazioneImmagine::Legge(file);
        PRETENDE(riletta.Pixel == intestazione.Pixel && riletta.InchiostriDiritti());
    }
}

} // namespace

/// Any bytes are judged within the time of one run, and what is judged whole stays so with more
/// bytes behind it.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *dati, std::size_t quanti)
{
    const QByteArray byte(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));
    QBuffer file;
    file.setData(byte);
    PRETENDE(file.open(QIODevice::ReadOnly));
    const IntestazioneImmagine intestazione = IntestazioneImmagine::Legge(file);
    PRETENDE(intestazione.PuntiPerPollice.width() >= 10);
    PRETENDE(intestazione.PuntiPerPollice.height() >= 10);
    PRETENDE(intestazione.FineDati <= intestazione.FineRighe);
    intestazione.Credibile(byte.size());
    PRETENDE(!intestazione.TroppeScansioni(byte) || intestazione.Formato == "jpeg");
    const bool intera = intestazione.Intera(byte);
    PRETENDE(!intera || intestazione.Formato == "gif" || intestazione.Formato == "jpeg");
    if (intera) {
        PRETENDE(intestazione.InizioDati > 0);
        PRETENDE(intestazione.Formato != "gif" || intestazione.Intera(byte + ";"));
    }
    if (intera && intestazione.Formato == "jpeg" && intestazione.InchiostriDiritti()) {
        ProvaSeparazioni(byte, intestazione);
    }
    return 0;
}
