// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// One entry of a zip archive as its headers describe it. Nothing of it has been checked.
struct ZipEntry
{
    enum class Kind { file, folder, link, other };

    /// The name as the file system would spell it.
    QByteArray name;
    Kind kind = Kind::other;
    bool executable = false;
    bool setsUserOrGroup = false;
    bool encrypted = false;
    /// The size of the unpacked bytes; -1 when the headers do not tell.
    qint64 size = -1;
    /// A link's target.
    QByteArray target;

    /// The name for a sentence: on one line, of bounded length.
    [[nodiscard]] QString shownName() const;
};
