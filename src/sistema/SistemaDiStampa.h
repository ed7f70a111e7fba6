#pragma once

#include "base/ErroreSistema.h"

#include <QByteArray>
#include <QList>
#include <QSizeF>
#include <QString>

#include <utility>

/// Conversations with the print system of the systems that have CUPS. Each uses a connection of its
/// own that is given up when nothing comes for some seconds, where Qt's would wait for minutes. A
/// queue is named as the system's default is: "queue", or "queue/instance" for the queue with the
/// settings that the user has given to an instance of it.
namespace SistemaDiStampa {

/// False when something takes calls at the print system's address and never answers. A system that
/// is not there at all gives true: it has no printers, and says so at once.
/// attesa: how long it may keep silent, ms.
bool Risponde(int attesa = 3000);

/// What to say of a system that is silent before anything has been given to it.
ErroreSistema NonRisponde();

/// Names and values of what a queue does unasked, or is asked for one job.
using Impostazioni = QList<std::pair<QByteArray, QByteArray>>;

/// How a page is turned on the upright sheet.
enum class Verso { Diritto, ASinistra, ADestra, Capovolto };

/// What the queue prints on when nothing is asked of it.
struct FoglioDellaCoda
{
    QList<QSizeF> Misure; ///< mm, upright: all that it takes, its own first, as it tells
    Verso Pagina = Verso::Diritto;
    Impostazioni DellUtente; ///< what else the user has set for the queue
};

/// Throws ErroreSistema 482 when the queue does not answer or is unknown.
FoglioDellaCoda ChiedeFoglio(const QString &coda);

/// Gives the queue a PDF to print, never scaled. Throws ErroreSistema 482 with the reason unless
/// the print system has taken all of it.
void Consegna(const QString &coda, const QString &titolo, const Impostazioni &impostazioni,
              const QByteArray &pdf);

/// Throws ErroreSistema 482 when the queue is not there, takes no jobs or does not answer.
void Prepara(const QString &coda);

} // namespace SistemaDiStampa
