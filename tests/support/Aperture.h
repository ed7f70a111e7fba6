#pragma once

#include <QFile>
#include <QString>

#include <array>

#include <sys/inotify.h>
#include <unistd.h>

/// Counts how often a file is opened, by anybody, as the system tells it.
class Aperture
{
public:
    explicit Aperture(const QString &percorso)
        : coda_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        // The closing is watched too, for the system joins like events that follow each other.
        if (inotify_add_watch(coda_, QFile::encodeName(percorso).constData(), IN_OPEN | IN_CLOSE) <
            0) {
            qFatal("the file cannot be watched");
        }
    }
    ~Aperture() { close(coda_); }
    Q_DISABLE_COPY_MOVE(Aperture)

    /// Since the last call, or the beginning.
    int Nuove() const
    {
        alignas(inotify_event) std::array<char, 4096> byte{};
        int quante = 0;
        for (ssize_t letti = read(coda_, byte.data(), byte.size()); letti > 0;
             letti = read(coda_, byte.data(), byte.size())) {
            // Events of a watched file bear no name: they are all of one length.
            for (ssize_t posto = 0; posto < letti; posto += ssize_t(sizeof(inotify_event))) {
                const auto *evento = reinterpret_cast<const inotify_event *>(&byte[posto]);
                quante += (evento->mask & IN_OPEN) != 0 ? 1 : 0;
            }
        }
        return quante;
    }

private:
    int coda_;
};
