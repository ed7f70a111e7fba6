#pragma once

#include <QByteArray>
#include <QStringList>

/// The volumes that a user may want to look into: drive letters on Windows ("C:"), elsewhere the
/// root and what is mounted below it from disks, removable media and servers (native full paths).
/// None of them is touched, so a server that does not answer cannot hold the caller up.
QStringList Volumi();

/// The volumes in a mount table of the form of /proc/self/mounts, the root first.
QStringList VolumiDaTabella(const QByteArray &tabella);
