#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Work that would keep a window from answering, done beside it: one piece at a time, in a thread
/// of the program's pool. The work shares nothing with the windows but what it is handed.
class LavoroInDisparte : public QObject
{
    Q_OBJECT
public:
    /// Asked by the work where it can stop: nobody waits for its result any more.
    using Annullato = std::function<bool()>;
    using Lavoro = std::function<void(const Annullato &)>;

    explicit LavoroInDisparte(QObject *padre = nullptr);
    /// As Annulla.
    ~LavoroInDisparte() override;

    /// Gives up what is under way first.
    void Avvia(const Lavoro &lavoro);
    /// Nothing more is heard of the work under way, which ends as soon as it asks.
    void Annulla();
    bool InCorso() const { return stato_ != nullptr; }
    /// After Finito: throws what the work has thrown.
    void Verifica() const;

signals:
    /// The work is done, well or badly; in the thread of this object.
    void Finito();

private:
    struct Stato;

    void Conclude();

    std::shared_ptr<Stato> stato_; ///< of the work under way
    std::exception_ptr errore_;    ///< of the last one that is done
};

/// Says from the thread of the work that it is done.
class FineDelLavoro : public QObject
{
    Q_OBJECT
signals:
    void Fatto();
};
