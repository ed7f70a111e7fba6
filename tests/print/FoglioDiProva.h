#pragma once

#include "model/Modello.h"
#include "print/Retino.h"
#include "print/StampaProva.h"
#include "print/Stampanti.h"
#include "support/ImmaginiDiProva.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QDir>
#include <QPageSize>
#include <QTemporaryDir>

/// A model printed on a PDF sheet and read back.
class FoglioDiProva
{
public:
    Modello Aperto;
    QStringList Avvisi;
    QMarginsF Margini;       ///< mm
    QSizeF Misura{210, 297}; ///< mm

    FoglioDiProva() { Aperto.NomeFile = QStringLiteral("Prova.Mod"); }

    Campo &ConCampo(const QString &nome, const QString &testo, double x, double y, int punti = 11)
    {
        Campo &campo = Aperto.Campi[Aperto.AggiungeCampo(x, y)];
        campo.Nome = nome;
        campo.Testo = testo;
        campo.Dimensione = qint16(punti);
        return campo;
    }

    Cornice &ConCornice(const QRectF &millimetri, double bordo, int colore = 0)
    {
        Cornice &cornice =
            Aperto.Cornici[Aperto.AggiungeCornice(millimetri.x(), millimetri.y(), 1, 1)];
        cornice.Testo.clear();
        cornice.Larghezza = millimetri.width();
        cornice.Altezza = millimetri.height();
        cornice.Bordo = bordo;
        cornice.ColoreCornice = qint16(colore);
        return cornice;
    }

    Immagine &ConImmagine(const QString &nome, const QByteArray &byte, const QRectF &millimetri)
    {
        if (!byte.isEmpty()) {
            ImmaginiDiProva::Scrive(Cartella() + nome, byte);
        }
        Immagine &immagine =
            Aperto.Immagini[Aperto.AggiungeImmagine(millimetri.x(), millimetri.y())];
        immagine.Nome = nome;
        immagine.Larghezza = millimetri.width();
        immagine.Altezza = millimetri.height();
        return immagine;
    }

    QString Cartella() const { return dir_.path() + QDir::separator(); }
    QString Pdf() const { return dir_.filePath(QStringLiteral("foglio.pdf")); }

    std::unique_ptr<Destinazione> Stampante() const
    {
        auto stampante = Stampanti::SuPdf(Pdf());
        stampante->Dispositivo().setPageSize(
            QPageSize(Misura, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
        stampante->Dispositivo().setPageMargins(Margini, QPageLayout::Millimeter);
        return stampante;
    }

    LettorePdf Stampa(bool StampaNome = false)
    {
        const auto stampante = Stampante();
        StampaModello(Aperto, Cartella(), *stampante, StampaNome,
                      [this](const QString &testo) { Avvisi.append(testo); });
        return LettorePdf(Pdf());
    }

    LettorePdf Retino() const
    {
        const auto stampante = Stampante();
        StampaRetino(*stampante);
        return LettorePdf(Pdf());
    }

private:
    QTemporaryDir dir_;
};

/// The sizes that one A4 page has place for, mm; none overlaps another.
inline QList<QRectF> SeiPosti()
{
    return {{2, 2, 100, 141},  {104, 2, 90, 127},  {2, 150, 80, 113},
            {84, 150, 60, 85}, {146, 150, 40, 57}, {146, 210, 20, 28}};
}
