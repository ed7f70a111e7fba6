#pragma once

#include "documento/Documento.h"

#include <QPointF>
#include <QSizeF>
#include <QTime>

/// Presses of one button that follow each other within this time are one step.
inline constexpr int MillisecondiDiSeguito = 1000;

/// Which steps are one: consecutive ones with the same non-empty key, with entroMillisecondi only
/// those that follow each other so soon. Those of a key without a limit, the letters typed into a
/// box, are finished only by Documento::ChiudeUnione.
struct Unione
{
    QString chiave;
    int entroMillisecondi = 0;
};

/// One edit of the open model, from its beginning to its end: the only way to write into it. When
/// the outermost step ends and something differs from its beginning, it becomes one step of the
/// history. A step inside another joins it, and its end shows what it did so far.
///
/// Members that take an element's number throw ErroreSistema 9 for one outside the table; what was
/// written before stays.
class Passo
{
public:
    /// testo: what undo will say it takes back, in the user's language.
    Passo(Documento &documento, const QString &testo, const Unione &unione = {});
    ~Passo();
    Passo(const Passo &) = delete;
    Passo &operator=(const Passo &) = delete;

    /// A gesture: one that leaves everything as it was is no finished edit.
    void SoloSeCambia() { soloSeCambia_ = true; }
    /// Another name for the outermost step.
    void Nomina(const QString &testo);
    /// Gives the outermost step up: model, lists and Variato are as at its beginning.
    void Rinuncia();
    /// The views follow now, before the end.
    void Mostra(Cambiamento::Origine origine = Cambiamento::Origine::Gesto);

    void SegnaVariato();
    void ImpostaTipo(const QString &tipo);
    void ImpostaSfondo(const ImmagineSfondo &sfondo);
    /// Stores the row area and sends the row fields to its beginning.
    void ImpostaRighe(const ParametriRighe &righe);

    /// Adds an element with the values of a new one at a place in mm; raises the count before it
    /// fails beyond 100. A frame bears the minute and second of ora in its name.
    Chiave Aggiunge(Genere genere, QPointF posto, QTime ora);

    /// Adds a record at the end of its table and places it. A full table keeps its count.
    Chiave Aggiunge(const Campo &campo);
    Chiave Aggiunge(const Cornice &cornice);
    Chiave Aggiunge(const Immagine &immagine);

    /// Replaces the record of an element and places it.
    void Scrive(int n, const Campo &campo);
    void Scrive(int n, const Cornice &cornice);
    void Scrive(int n, const Immagine &immagine);
    /// The lists show the element under its name of now.
    void RinominaVoce(Chiave chiave);
    /// Makes the element absent; the lists mark it.
    void Elimina(Chiave chiave);
    /// Shifts all elements of the kind, deleted ones too, and places them; mm.
    void SpostaTutti(Genere genere, double dx, double dy);

    /// In the middle of a gesture: the coordinates as the mouse has them, mm, not rounded.
    void Trascina(Chiave chiave, QPointF posto);
    /// The same for the size of a frame or an image; nothing for a field.
    void Ridimensiona(Chiave chiave, QSizeF misura);
    /// Puts the element where its rules want it.
    void Colloca(Chiave chiave);

private:
    template <typename Record>
    Chiave AggiungeRecord(Genere genere, Tabella<Record> &tabella, const Record &record);
    template <typename Record>
    void ScriveRecord(Chiave chiave, Record &vecchio, const Record &nuovo);
    void Tocca(Chiave chiave);
    StatoDocumento &Stato() { return documento_.stato_; }
    Modello &Aperto() { return documento_.stato_.modello; }

    Documento &documento_;
    QString testo_;
    Unione unione_;
    std::unique_ptr<StatoDocumento> prima_; ///< of the outermost step
    bool variatoPrima_ = false;
    bool daConcluderePrima_ = false;
    bool soloSeCambia_ = false;
};
