#pragma once

#include <QString>

/// The user's own folder for what the program keeps between runs that is no setting and no model
/// (XDG_STATE_HOME/plakera, by default ~/.local/state/plakera; on Windows the local application
/// data). It need not exist yet. Empty for a user without a home.
QString CartellaStato();
