#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

class QWidget;

/// The size at the percentage that was typed, read leniently; nothing when it is beyond a double,
/// and the user has been told so.
std::optional<QSizeF> Ridotta(QWidget *padre, const QSizeF &misura, const QString &percentuale);
