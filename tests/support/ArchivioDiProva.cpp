#include "support/ArchivioDiProva.h"

#include "model/FileModello.h"

#include <QDir>
#include <QFile>

ArchivioDiProva::ArchivioDiProva(const QString &nomeFile)
{
    QDir(cartella_.path()).mkpath(QStringLiteral("Contabilita/ini"));
    // Safety copies must not land among the user's own.
    qputenv("XDG_STATE_HOME", QFile::encodeName(CartellaStato()));
    stato_.CartellaModelli = cartella_.filePath(QStringLiteral("Contabilita/ini/"));
    stato_.Aperto.NomeFile = nomeFile;
    stato_.Aperto.Righe = {100, 200, 5, 4, Modello::SeguePagPredefinito};
    stato_.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")};
}

QString ArchivioDiProva::CartellaStato() const
{
    return cartella_.filePath(QStringLiteral("stato"));
}

QString ArchivioDiProva::Percorso() const
{
    return stato_.CartellaModelli + stato_.Aperto.NomeFile;
}

void ArchivioDiProva::Scrive()
{
    FileModello::Salva(stato_.Aperto, Percorso(), QLocale::c());
}

Modello ArchivioDiProva::Riletto() const
{
    Modello letto;
    letto.NomeFile = stato_.Aperto.NomeFile;
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
        const double x = 10 + (k % 10) * 20;
        const double y = 10 + (k / 10) * 25;
        AggiungeCampo(QStringLiteral("Campo%1").arg(k), x, y);
        AggiungeCornice(QStringLiteral("Cornice%1").arg(k), x, y + 5, 18, 8);
        AggiungeImmagine(QStringLiteral("immagine%1.bmp").arg(k), x, y + 14, 15, 8);
    }
}

int ArchivioDiProva::AggiungeCampo(const QString &nome, double x, double y)
{
    const int n = stato_.Aperto.AggiungeCampo(x, y);
    Campo &campo = stato_.Aperto.Campi[n];
    campo.Nome = nome;
    campo.Testo = nome;
    return n;
}

int ArchivioDiProva::AggiungeCornice(const QString &nome, double x, double y, double larghezza,
                                     double altezza)
{
    const int n = stato_.Aperto.AggiungeCornice(x, y, 0, 0);
    Cornice &cornice = stato_.Aperto.Cornici[n];
    cornice.Nome = nome;
    cornice.Testo = nome;
    cornice.Larghezza = larghezza;
    cornice.Altezza = altezza;
    return n;
}

int ArchivioDiProva::AggiungeImmagine(const QString &nome, double x, double y, double larghezza,
                                      double altezza)
{
    const int n = stato_.Aperto.AggiungeImmagine(x, y);
    Immagine &immagine = stato_.Aperto.Immagini[n];
    immagine.Nome = nome;
    immagine.Larghezza = larghezza;
    immagine.Altezza = altezza;
    return n;
}
