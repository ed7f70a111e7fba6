#pragma once

#include "controllo/ControlloDelModello.h"
#include "documento/Documento.h"
#include "sistema/Percorsi.h"
#include "support/ImmaginiDiProva.h"

#include <QTemporaryDir>

/// A model about which there is nothing to say, in a folder with the files that it names, on a
/// printer with an A4 sheet; to be spoilt in one point.
class ModelloSano
{
public:
    static constexpr double LarghezzaStampabile = 200; // mm
    static constexpr double AltezzaStampabile = 287;   // mm

    ModelloSano()
    {
        Aperto.Righe = {100, 200, 5, 4, Modello::SeguePagPredefinito};
        Campo("Numero", 10, 20, "128/A");
        Campo("Data", 60, 20, "15/03/2026");
        Campo("R_Importo", 150, 100, "1.234,50").Maschera = QStringLiteral("###.###,###");
        Cornice("Riquadro", 5, 15, 100, 12).Bordo = 1.3;
        Cornice("Titolo", 120, 15, 40, 6).Testo = QStringLiteral("FATTURA");
        Immagine("logo.bmp", 10, 40, 60, 20);
        Immagine("timbro.gif", 10, 250, 30, 20);
        Scrive("logo.bmp",
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({60, 20}, qRgb(1, 2, 3)), "bmp"));
        Scrive("timbro.gif", ImmaginiDiProva::GifAnimata());
        Scrive("scansione.bmp",
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({21, 30}, 0), "bmp"));
        Aperto.Sfondo.File = In("scansione.bmp");
        controllo_.ImpostaFoglio(FoglioStampante{
            QRectF(-5, -5, 210, 297), QRectF(0, 0, LarghezzaStampabile, AltezzaStampabile)});
    }

    ::Campo &Campo(const char *nome, double x, double y, const char *testo)
    {
        ::Campo &campo = Aperto.Campi[Aperto.AggiungeCampo(x, y)];
        campo.Nome = QString::fromUtf8(nome);
        campo.Testo = QString::fromUtf8(testo);
        return campo;
    }
    /// Without a caption.
    ::Cornice &Cornice(const char *nome, double x, double y, double larghezza, double altezza)
    {
        ::Cornice &cornice = Aperto.Cornici[Aperto.AggiungeCornice(x, y, 1, 1)];
        cornice.Nome = QString::fromUtf8(nome);
        cornice.Testo.clear();
        cornice.Larghezza = larghezza;
        cornice.Altezza = altezza;
        cornice.Bordo = 0;
        return cornice;
    }
    ::Immagine &Immagine(const char *nome, double x, double y, double larghezza, double altezza)
    {
        ::Immagine &immagine = Aperto.Immagini[Aperto.AggiungeImmagine(x, y)];
        immagine.Nome = QString::fromUtf8(nome);
        immagine.Larghezza = larghezza;
        immagine.Altezza = altezza;
        return immagine;
    }

    QString In(const char *nome) const { return cartella_.filePath(QString::fromUtf8(nome)); }
    void Scrive(const char *nome, const QByteArray &byte) const
    {
        ImmaginiDiProva::Scrive(In(nome), byte);
    }
    ControlloDelModello &Controllo() { return controllo_; }

    /// The findings once the model has been opened.
    QList<Rilievo> Rilievi()
    {
        Documento documento;
        documento.Prende(Aperto, false);
        return controllo_.Esamina(documento);
    }
    /// "subject: sentence" of each.
    QStringList Righe()
    {
        QStringList righe;
        for (const Rilievo &rilievo : Rilievi()) {
            righe.append(rilievo.SuUnaLinea());
        }
        return righe;
    }

    Modello Aperto;

private:
    QTemporaryDir cartella_;
    ControlloDelModello controllo_{cartella_.path() + Percorsi::Separatore(),
                                   [](const ImmagineSfondo &sfondo) { return sfondo.File; }};
};
