// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// What the directory at the end of a zip archive literally says of each entry.
///
/// The zip library reads archives leniently: it ends a name at a NUL, turns a FIFO into a file and
/// composes the accents of a name. This record lets such entries be refused, and keeps names as
/// they are.
struct ZipDirectoryEntry
{
    QByteArray name;
    /// The Unix mode; 0 when the archive was made on a system without modes.
    quint32 mode = 0;
    quint64 offset = 0;

    /// The entries of the archive `file` in the order of their data, which is the order in which
    /// the library gives them. Throws ZipError when there is no whole directory.
    static std::vector<ZipDirectoryEntry> readAll(const QString& file);
};
