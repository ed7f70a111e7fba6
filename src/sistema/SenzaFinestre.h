#pragma once

/// Chooses a window system that needs no display, for the commands that open no window. Call it
/// before the application object exists. On Windows the ordinary one serves.
void SenzaFinestre();

/// False when no window system is even named. To be asked before the application object exists.
bool SchermoPresente();

/// What the program says on standard error when it ends because windows cannot be shown.
inline constexpr auto AvvisoSenzaSchermo =
    "plakera: nessuno schermo; per stampare senza finestre vedi --help\n";

/// While it lives, a window system that cannot be used (a display that does not answer, a missing
/// plug-in) ends the program with AvvisoSenzaSchermo and status 1, where Qt would abort. For the
/// time that the application object takes to come into being.
class FineSenzaSchermo
{
public:
    FineSenzaSchermo();
    ~FineSenzaSchermo();
    FineSenzaSchermo(const FineSenzaSchermo &) = delete;
    FineSenzaSchermo &operator=(const FineSenzaSchermo &) = delete;
};
