#pragma once

#include "documento/CopiaRecupero.h"

#include <QObject>
#include <QString>

#include <optional>

class Documento;

/// The file of the open model, from its opening to its closing: reads it, with the work that an
/// earlier opening left unsaved, keeps a safety copy of every finished edit, and writes it back.
/// What only the user can decide it asks its Interlocutore.
class ModelloSuFile : public QObject
{
    Q_OBJECT
public:
    /// Speaks with the user.
    class Interlocutore
    {
    public:
        enum class Risposta { Si, No, Annulla };

        virtual void Avvisa(const QString &testo) = 0;
        /// Shall the work be taken up that an earlier opening left? Annulla: nor be opened at all.
        virtual Risposta RiprendeLavoro(const CopiaRecupero::Trovata &lavoro) = 0;
        /// Shall a file that another program has changed since it was opened be replaced?
        virtual bool SostituisceFileCambiato() = 0;

    protected:
        ~Interlocutore() = default;
    };

    /// cartella ends in a separator; the file in it is found without regard to case. documento and
    /// interlocutore must outlive it. For the safety copies see CopiaRecupero.
    ModelloSuFile(Documento &documento, const QString &cartella, QString nomeFile,
                  const QString &cartellaCopie, Interlocutore &interlocutore);
    ~ModelloSuFile() override;

    /// Reads the file into the document; slots that it does not fill keep what they held. False
    /// when it cannot be read (which has been told) or the user does not go on; what was read
    /// before a failure stays in the document.
    bool Apre();

    /// Writes the file. False when the user would not replace one that another program changed.
    /// Throws ErroreSistema, whose description names the file.
    bool Salva();

    /// Removes the file for good; nothing is left to save then. Throws ErroreSistema.
    void Elimina();

    /// What has not been saved is given up; no later edit of the document concerns it.
    void Chiude();

private:
    enum class Recupero { Nessuno, Ripreso, Annullato };

    /// modello becomes the work that is taken up. letto: it has been read to the end.
    Recupero OffreRecupero(Modello &modello, bool letto);
    void ScriveCopia();
    void AvvisaCopiaMancata(const ErroreSistema &errore);
    void Scrive();

    Documento &documento_;
    QString nomeFile_;
    QString percorso_; ///< spelled as on disk
    CopiaRecupero copia_;
    Interlocutore &interlocutore_;
    bool copiaMancata_ = false; ///< its failure has been told
};
