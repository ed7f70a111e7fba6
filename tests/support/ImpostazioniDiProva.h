#pragma once

#include <QString>
#include <QTemporaryDir>

/// The settings of Vastrel's that the program reads while this object lives: none of the user's
/// own. On Windows they are in the registry, and what the user has there comes back with its end.
class ImpostazioniDiProva
{
public:
    ImpostazioniDiProva();
    ~ImpostazioniDiProva();
    ImpostazioniDiProva(const ImpostazioniDiProva &) = delete;
    ImpostazioniDiProva &operator=(const ImpostazioniDiProva &) = delete;

    /// An empty folder is none.
    void Dirtxt(const QString &cartella) const;

    /// Where the program keeps its own files meanwhile.
    QString Cartella() const { return cartella_.path(); }

private:
    QTemporaryDir cartella_;
    QString prima_; ///< what the user has, where it has to come back
};
