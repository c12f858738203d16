// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>
#include <stop_token>

/// The list of SHA-512 checksums that comes with a release: one file a line, the digest first and
/// the name last.
namespace ChecksumList {

/// Downloads the list at `url` into memory. Throws AppError for a status other than 200 or a list
/// of more than 1 MiB, PlatformError for what the network reports, a silence of `stallTimeout`
/// included, and Cancelled when `stop` is requested. Blocks.
QByteArray download(const QUrl& url, std::chrono::milliseconds stallTimeout,
                    const std::stop_token& stop);

/// The lower-cased digest that `list` has for the file called `fileName`, which may have asterisks
/// around it, the mark of a binary file. The last line that names the file counts. Names match
/// exactly: a carriage return at the end of a line belongs to the name, so that such a line never
/// matches.
std::optional<QString> digestFor(const QByteArray& list, const QString& fileName);

} // namespace ChecksumList
