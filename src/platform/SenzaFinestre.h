#pragma once

/// Chooses a window system that needs no display, for the commands that open no window. Call it
/// before the application object exists. On Windows the ordinary one serves.
void SenzaFinestre();
