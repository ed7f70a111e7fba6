#include "support/ArchivioDiProva.h"

#include "model/FileModello.h"

#include <QDir>
#include <QFile>

ArchivioDiProva::ArchivioDiProva(const QString &nomeFile)
{
    QDir(cartella_.path()).mkpath(QStringLiteral("Contabilita/ini"));
    // Safety copies must not land among the user's own.
    for (const char *diUnSistema : {"XDG_STATE_HOME", "LOCALAPPDATA"}) {
        qputenv(diUnSistema, QFile::encodeName(CartellaStato()));
    }
    stato_.CartellaModelli =
        QDir::toNativeSeparators(cartella_.filePath(QStringLiteral("Contabilita/ini/")));
    stato_.NomeFile = nomeFile;
    modello_.NomeFile = nomeFile;
    modello_.Righe = {100, 200, 5, 4, Modello::SeguePagPredefinito};
    stato_.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")};
}

QString ArchivioDiProva::CartellaStato() const
{
    return cartella_.filePath(QStringLiteral("stato"));
}

QString ArchivioDiProva::Percorso() const
{
    return stato_.CartellaModelli + stato_.NomeFile;
}

StatoProgramma ArchivioDiProva::AltroStato() const
{
    return {.documento = {},
            .NomeFile = stato_.NomeFile,
            .CartellaModelli = stato_.CartellaModelli,
            .CartellaImportate = {},
            .ArchivioPredefinito = {},
            .CartellaEsportazione = {},
            .ElencoFont = stato_.ElencoFont,
            .zoom = stato_.zoom};
}

void ArchivioDiProva::Scrive()
{
    FileModello::Salva(modello_, Percorso(), QLocale::c());
}

Modello ArchivioDiProva::Riletto() const
{
    Modello letto;
    letto.NomeFile = stato_.NomeFile;
    FileModello::Carica(letto, Percorso());
    return letto;
}

QByteArray ArchivioDiProva::ByteDelFile() const
{
    QFile file(Percorso());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ArchivioDiProva::Riempie(int n)
{
    for (int k = 1; k <= n; ++k) {
        const int x = 10 + (k % 10) * 20;
        const int y = 10 + (k / 10) * 25;
        AggiungeCampo(QStringLiteral("Campo%1").arg(k), x, y);
        AggiungeCornice(QStringLiteral("Cornice%1").arg(k), x, y + 5, 18, 8);
        AggiungeImmagine(QStringLiteral("immagine%1.bmp").arg(k), x, y + 14, 15, 8);
    }
}

int ArchivioDiProva::AggiungeCampo(const QString &nome, double x, double y)
{
    const int n = modello_.AggiungeCampo(x, y);
    Campo &campo = modello_.Campi[n];
    campo.Nome = nome;
    campo.Testo = nome;
    return n;
}

int ArchivioDiProva::AggiungeCornice(const QString &nome, double x, double y, double larghezza,
                                     double altezza)
{
    const int n = modello_.AggiungeCornice(x, y, 0, 0);
    Cornice &cornice = modello_.Cornici[n];
    cornice.Nome = nome;
    cornice.Testo = nome;
    cornice.Larghezza = larghezza;
    cornice.Altezza = altezza;
    return n;
}

int ArchivioDiProva::AggiungeImmagine(const QString &nome, double x, double y, double larghezza,
                                      double altezza)
{
    const int n = modello_.AggiungeImmagine(x, y);
    Immagine &immagine = modello_.Immagini[n];
    immagine.Nome = nome;
    immagine.Larghezza = larghezza;
    immagine.Altezza = altezza;
    return n;
}
