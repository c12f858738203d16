// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>
#include <stop_token>

/// The SHA-512 checksum list of a release. Each line has a digest first and a file name last.
namespace ChecksumList {

/// Downloads the list at `url` into memory. Throws AppError for an HTTP status other than 200 or a
/// list of more than 1 MiB, PlatformError for a network error or after `stallTimeout` without data,
/// and Cancelled when `stop` is requested. Blocks.
QByteArray download(const QUrl& url, std::chrono::milliseconds stallTimeout,
                    const std::stop_token& stop);

/// Returns the digest of the file `fileName` in lower case, from the last line that names it.
/// Ignores asterisks around the name, which mark a binary file. A carriage return is part of the
/// name.
std::optional<QString> digestFor(const QByteArray& list, const QString& fileName);

} // namespace ChecksumList
