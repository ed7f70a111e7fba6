#pragma once

/// Chooses a window system that needs no display, for the commands that open no window. Call it
/// before the application object exists. On Windows the ordinary one serves.
void SenzaFinestre();

/// False when windows cannot be shown at all. To be asked before the application object exists.
bool SchermoPresente();
