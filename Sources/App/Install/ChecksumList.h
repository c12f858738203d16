// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The list of SHA-512 checksums that comes with a release: one file a line, the digest first and
/// the name last.
namespace ChecksumList {

/// The lower-cased digest that `list` has for the file called `fileName`, which may have asterisks
/// around it, the mark of a binary file. The last line that names the file counts. Names match
/// exactly: a carriage return at the end of a line belongs to the name, so that such a line never
/// matches.
std::optional<QString> digestFor(const QByteArray& list, const QString& fileName);

} // namespace ChecksumList
