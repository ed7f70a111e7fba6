#pragma once

#include "support/FileDiProva.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <stdexcept>

/// The lines of a model file, found by the names of its elements.
class RigheFile
{
public:
    // Lines after the one with the name.
    struct Campo
    {
        enum { Nome, Testo, Maschera, X, Y };
    };
    struct Cornice
    {
        enum { Nome, Testo, X, Y, Altezza = 8, Larghezza, Bordo, ColoreCornice, ColoreTesto };
    };
    struct Immagine
    {
        enum { Nome, X, Y, Altezza = 4, Larghezza };
    };

    explicit RigheFile(const QString &percorso)
        : righe_(ByteDi(percorso).split('\n'))
    {
    }

    /// A line of the element without its end. A line that equals the name and has an empty one
    /// before it is the name's own.
    QByteArray Riga(const QByteArray &nome, int dopo) const
    {
        return righe_[Posto(nome) + dopo].chopped(1);
    }
    void Mette(const QByteArray &nome, int dopo, const QByteArray &testo)
    {
        righe_[Posto(nome) + dopo] = testo + '\r';
    }
    /// A line of the head, counted from 1.
    void MetteTesta(int numero, const QByteArray &testo) { righe_[numero - 1] = testo + '\r'; }
    QByteArray Testa(int numero) const { return righe_[numero - 1].chopped(1); }
    QList<QByteArray> NomiCampi() const
    {
        QList<QByteArray> nomi;
        constexpr qsizetype Testata = 51;
        constexpr qsizetype RigheCampo = 12;
        for (qsizetype i = Testata; righe_[i] != "FINECAMPI\r"; i += RigheCampo) {
            nomi.append(righe_[i + 1].chopped(1));
        }
        return nomi;
    }

    /// The first difference from the other lines, for a message; empty when there is none.
    QByteArray Differenza(const RigheFile &altre) const
    {
        for (qsizetype i = 0; i < qMax(righe_.size(), altre.righe_.size()); ++i) {
            if (righe_.value(i) != altre.righe_.value(i)) {
                return "line " + QByteArray::number(i + 1) + ": '" + righe_.value(i).trimmed() +
                       "', not '" + altre.righe_.value(i).trimmed() + '\'';
            }
        }
        return {};
    }

private:
    qsizetype Posto(const QByteArray &nome) const
    {
        for (qsizetype i = 1; i < righe_.size(); ++i) {
            if (righe_[i - 1] == "\r" && righe_[i] == nome + '\r') {
                return i;
            }
        }
        throw std::runtime_error("no element " + nome.toStdString());
    }

    QList<QByteArray> righe_;
};
