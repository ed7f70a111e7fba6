#pragma once

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <system_error>

/// The new bytes on their way into the place of a file: a file beside it, with a name that no other
/// has, removed with the object unless it took that place. For the functions of Disco.
class FileTemporaneo
{
public:
    /// Makes nothing yet. The file bersaglio need not exist.
    explicit FileTemporaneo(const QFileInfo &bersaglio);
    ~FileTemporaneo();
    FileTemporaneo(const FileTemporaneo &) = delete;
    FileTemporaneo &operator=(const FileTemporaneo &) = delete;

    /// Who may read the new file.
    enum class Per {
        ChiPoteva, ///< those who could read the old one; of a new one those that the system lets
        Utente     ///< the user alone
    };

    /// Makes the file; for ChiPoteva with what the old one has besides its bytes.
    std::error_code Apre(Per chi);

    /// After Apre: the new file has everything that the old one has.
    bool TieneTutto() const { return tieneTutto_; }

    /// After Apre: removes from the folder what killed programs left in it ten minutes ago or more.
    void SpazzaResti() const;

    /// After Apre, once: all the bytes, as far as the medium. Throws ErroreSistema.
    void Scrive(const QByteArray &byte);

    /// Closes the file and gives it out of hand; its path.
    QString Lascia();

    /// Closes the file and moves it into its place.
    std::error_code PrendeIlPosto();

private:
    QFileInfo bersaglio_;
    QFile file_;
    bool creato_ = false;
    bool tieneTutto_ = true;
};
