#include "finestre/LavoroInDisparte.h"

#include <QThreadPool>

#include <atomic>
#include <exception>
#include <utility>

/// Held by the work and by who waits for it: the last of the two lets it go.
struct LavoroInDisparte::Stato
{
    std::atomic<bool> annullato{false};
    std::exception_ptr errore;
    FineDelLavoro fine;
};

LavoroInDisparte::LavoroInDisparte(QObject *padre)
    : QObject(padre)
{
}

LavoroInDisparte::~LavoroInDisparte()
{
    Annulla();
}

void LavoroInDisparte::Avvia(const Lavoro &lavoro)
{
    Annulla();
    errore_ = nullptr;
    stato_ = std::make_shared<Stato>();
    connect(&stato_->fine, &FineDelLavoro::Fatto, this, &LavoroInDisparte::Conclude,
            Qt::QueuedConnection);
    // The application waits for the pool before it goes, so no work outlives what Qt needs for it.
    QThreadPool::globalInstance()->start([stato = stato_, lavoro] {
        try {
            lavoro([&stato = *stato] { return stato.annullato.load(); });
        } catch (...) {
            stato->errore = std::current_exception(); // for Verifica
        }
        emit stato->fine.Fatto();
    });
}

void LavoroInDisparte::Annulla()
{
    if (stato_ != nullptr) {
        stato_->annullato = true;
        stato_->fine.disconnect(this);
        stato_.reset();
    }
}

void LavoroInDisparte::Conclude()
{
    // What was given up may have been done already: its word is on the way still.
    if (stato_ == nullptr || sender() != &stato_->fine) {
        return;
    }
    errore_ = std::exchange(stato_->errore, nullptr);
    stato_.reset();
    emit Finito();
}

void LavoroInDisparte::Verifica() const
{
    if (errore_ != nullptr) {
        std::rethrow_exception(errore_);
    }
}
