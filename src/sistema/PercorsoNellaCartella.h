#pragma once

#include <QString>
#include <QStringList>

/// Path of a file of the folder. A folder that is one of the roots as it stands, or followed by the
/// separator, ends in a separator already.
QString PercorsoNellaCartella(const QStringList &radici, const QString &cartella,
                              const QString &nome, const QString &separatore);
