#pragma once

#include <QDBusConnection>
#include <QList>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class QProcessEnvironment;

/// What a screen reader knows of the programs on a desk: it asks them over the accessibility bus of
/// a session of its own. For Linux with D-Bus and AT-SPI.
class LettoreSchermo
{
public:
    /// A part of a program's windows, as it shows itself on the bus.
    struct Parte
    {
        QString servizio;
        QString percorso;
        QString nome;

        bool Vera() const { return !percorso.isEmpty(); }
    };

    /// Starts the session; the programs that are started with the environment from then on are in
    /// it and know that they are read. Throws std::runtime_error.
    explicit LettoreSchermo(QProcessEnvironment &ambiente);
    ~LettoreSchermo();
    Q_DISABLE_COPY_MOVE(LettoreSchermo)

    /// Waits for the window of that title.
    Parte Finestra(const QString &titolo) const;
    QList<Parte> Figli(const Parte &parte) const;
    /// The first part of that name inside, however deep; none when there is none.
    Parte Dentro(const Parte &parte, const QString &nome) const;
    /// Pixels of the screen.
    QRect Rettangolo(const Parte &parte) const;
    QString Descrizione(const Parte &parte) const;
    QString Ruolo(const Parte &parte) const;
    /// By their names; those that every program has are in English.
    QStringList Azioni(const Parte &parte) const;
    void Esegue(const Parte &parte, const QString &azione) const;

private:
    QVariantList Chiede(const Parte &parte, const char *interfaccia, const char *metodo,
                        const QVariantList &argomenti = {}) const;
    QString Proprieta(const Parte &parte, const char *nome) const;

    QTemporaryDir dir_;
    QProcess sessione_;
    QString indirizzo_; ///< of the accessibility bus
};
