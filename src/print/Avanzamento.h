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
