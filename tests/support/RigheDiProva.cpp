#include "support/RigheDiProva.h"

#include "model/FileModello.h"

#include "support/Errori.h"

QByteArray RigheDiProva::File(const Righe &righe)
{
    return righe.join("\r\n") + "\r\n";
}

RigheDiProva::Righe RigheDiProva::Testata()
{
    return {"Fattura", "",      "sfondo.bmp", "210", "297",   "0",  "5",
            " 90 ",    " 230 ", " 4 ",        " 1 ", "segue", " 3 "};
}

RigheDiProva::Righe RigheDiProva::Inizio()
{
    return Testata() + Righe(38, "");
}

RigheDiProva::Righe RigheDiProva::BloccoCampo(const QByteArray &nome)
{
    return {"", nome, "testo", "##", "1.5", "2", "Arial", "11", "-1", "$$", "descr", ""};
}

RigheDiProva::Righe RigheDiProva::BloccoCornice(const QByteArray &nome)
{
    return {"",   nome,    "testo", "1.5", "2",   "Arial", "11",
            "-1", "descr", "10",    "20",  "1.5", "4",     "12"};
}

RigheDiProva::Righe RigheDiProva::BloccoImmagine(const QByteArray &nome)
{
    return {"", nome, "1.5", "2", "descr", "10", "20", "0.5", ""};
}

RigheDiProva::Righe RigheDiProva::Blocco(Genere genere, const QByteArray &nome)
{
    switch (genere) {
    case Genere::Campo:
        return BloccoCampo(nome);
    case Genere::Cornice:
        return BloccoCornice(nome);
    case Genere::Immagine:
        break;
    }
    return BloccoImmagine(nome);
}

RigheDiProva::Righe RigheDiProva::Intero(Genere genere, const Righe &blocchi)
{
    Righe righe = Inizio();
    for (const auto &[sezione, marcatore] :
         {std::pair{Genere::Campo, "FINECAMPI"}, std::pair{Genere::Cornice, "FINECORNICI"},
          std::pair{Genere::Immagine, "FINEIMMAGINI"}}) {
        righe += sezione == genere ? blocchi : Righe();
        righe += marcatore;
    }
    return righe;
}

Modello RigheDiProva::Letto(const QByteArray &byte)
{
    Modello modello;
    FileModello::Analizza(byte, modello);
    return modello;
}

int RigheDiProva::ErroreLeggendo(const QByteArray &byte, Modello &modello)
{
    return ErroreDi([&] { FileModello::Analizza(byte, modello); });
}
