#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Says, and returns false, when a file of this name shall not be made after all.
using NomeAccettato = std::function<bool(const QString &nomeFile)>;

/// Asks for the name of a new model in cartella, which ends in a separator, starting from proposto;
/// a name that no model can have, or that is not accettato, comes back to be mended. The name of
/// the file, with its extension; empty when the user gives up.
QString ChiedeNomeModello(QWidget *padre, const QString &cartella, const QString &testo,
                          const QString &proposto, const NomeAccettato &accettato = {});
