#pragma once

#include <exception>
#include <functional>

/// Told again and again while a sheet is painted: how much of it is done, 0 to 1. It may run events
/// of the window system, and give the sheet up by throwing StampaAnnullata.
using Avanzamento = std::function<void(double parte)>;

/// The user wants the sheet no more: nothing of it has been handed over.
class StampaAnnullata : public std::exception
{
};

/// The user has stopped waiting while the sheet was being handed over: nobody knows its fate.
class ConsegnaAbbandonata : public StampaAnnullata
{
};

/// Work that waits for the print system. It may go on for itself when nobody waits for it any more,
/// and in another thread: it must own all that it touches, and stop where abbandonato says so.
using LavoroDelSistema = std::function<void(const std::function<bool()> &abbandonato)>;

/// Does such a work and comes back when it is done: throws what the work throws, and
/// StampaAnnullata when the user waits no more.
using AttesaDelSistema = std::function<void(const LavoroDelSistema &lavoro)>;
