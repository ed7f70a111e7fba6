#pragma once

#include <QString>

/// Vastrel's per-user settings; Plakera only reads them and has none of its own.
/// Windows: HKEY_CURRENT_USER\Software\VB and VBA Program Settings\vastrel\INI.
/// Elsewhere: group INI of the per-user ini file of application "vastrel" (~/.config/vastrel.ini).
namespace Impostazioni {

/// Value of "dirtxt", the data folder; empty when missing.
QString Dirtxt();

/// Vastrel's installation folder. Windows: a fixed path below C:\K19; elsewhere key
/// "INI/dirvastrel", empty when missing.
QString CartellaVastrel();

} // namespace Impostazioni
