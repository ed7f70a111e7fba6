#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

/// Message boxes and questions: title = the program's name, Italian buttons on every system. The
/// middle of a text too long for any screen is left out.
/// Without windows (the command-line printing) the texts go to standard error instead.
namespace Messaggi {

inline constexpr QLatin1String Titolo("Plakera");

enum class Risposta { No, Si };

/// OK button only.
void Mostra(QWidget *padre, const QString &testo);
/// OK button only, critical icon.
void MostraCritico(QWidget *padre, const QString &testo);

/// Yes/No. Where No is the default, the close box and Escape answer No; otherwise they do nothing,
/// because a No that nobody chose would lose work. Without windows: the default.
bool Domanda(QWidget *padre, const QString &testo, Risposta predefinita);

enum class Scelta { Si, No, Annulla };

/// Yes/No/Cancel; the window's close box and Escape cancel. Without windows: No.
Scelta DomandaAnnullabile(QWidget *padre, const QString &testo, Scelta predefinita);

/// Yes/No; the close box and Escape answer neither (Annulla). Without windows: the default.
Scelta DomandaRinunciabile(QWidget *padre, const QString &testo, Risposta predefinita);

/// A button for each of bottoni, from left to right; the index of the one pressed. The window's
/// close box and Escape press the one at rinuncia, which is the default. Without windows: rinuncia.
int DomandaAScelta(QWidget *padre, const QString &testo, const QStringList &bottoni, int rinuncia);

/// A text-input box; nothing when the user cancels (always nothing without windows).
std::optional<QString> ChiedeTesto(QWidget *padre, const QString &titolo, const QString &richiesta,
                                   const QString &proposta);

/// From now on no box opens: messages go to standard error, one line each.
void SoloErroreStandard();
/// How many messages have gone to standard error.
int Emessi();

} // namespace Messaggi
