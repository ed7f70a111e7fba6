#pragma once

struct StatoProgramma;
class QWidget;

/// Asks, for each safety copy whose model is gone or cannot be read, whether to look at it, keep
/// it, save it as a new model or throw it away; tells of the copies that are damaged. True when a
/// model has been saved. A new model goes where the old one was, or, when that folder is gone, into
/// the models folder of stato. For the time when the start window is on the screen.
bool OffreLavoroRimasto(QWidget *padre, const StatoProgramma &stato);
