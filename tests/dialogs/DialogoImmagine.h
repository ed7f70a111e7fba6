#pragma once

#include "dialogs/DialogoDiProva.h"
#include "support/ImmaginiDiProva.h"

#include <QListWidget>

#include <functional>

inline constexpr double PuntiPerPollice = 254; // 10 pixels for each millimetre

/// A picture of so many millimetres, in the format of its name's ending.
inline QByteArray Figura(const char *formato, int larghezza, int altezza)
{
    return ImmaginiDiProva::InFormato(
        ImmaginiDiProva::Tinta({larghezza * 10, altezza * 10}, qRgb(200, 30, 30)), formato,
        PuntiPerPollice);
}

/// The dialog of a picture over a folder with files.
struct DialogoImmagine : DialogoDiProva
{
    DialogoImmagine()
        : DialogoDiProva(Genere::Immagine, QStringLiteral("vecchia%1.bmp"))
        , dialogo(static_cast<FrmImmagine &>(*DialogoDiProva::dialogo))
    {
        Mostra();
    }

    /// Adds a file to the folder and shows the second picture again.
    void Aggiunge(const char *nome, const QByteArray &byte)
    {
        ImmaginiDiProva::Scrive(cartella.filePath(QString::fromUtf8(nome)), byte);
        Apre(2);
    }

    /// nome: UTF-8.
    void Clicca(const char *nome)
    {
        auto *elenco = Controlli::Trova<QListWidget>(dialogo, "FileImmagini");
        const QList<QListWidgetItem *> voci =
            elenco->findItems(QString::fromUtf8(nome), Qt::MatchExactly);
        QCOMPARE(voci.size(), 1);
        elenco->scrollToItem(voci.first());
        QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier,
                          elenco->visualItemRect(voci.first()).center());
    }

    void CambiaSeconda(const std::function<void(Immagine &)> &cambia)
    {
        Cambia(stato, [&](Modello &modello) { cambia(modello.Immagini[2]); });
    }
    const Immagine &Seconda() const { return stato.Aperto().Immagini[2]; }

    FrmImmagine &dialogo;
};
