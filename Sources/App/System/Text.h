// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

/// Reads and decodes text by the same rules everywhere.
namespace Text {

/// The maximum size in bytes of a text file of the game.
constexpr qint64 maxFileSize = qint64{64} * 1024 * 1024;

/// Returns the whole text of the regular file at `path`; nothing if it is missing, unreadable, not
/// a regular file, larger than `maxSize` bytes or not well-formed UTF-8. An initial byte order mark
/// is not part of the text.
std::optional<QString> readFile(const QString& path, qint64 maxSize = maxFileSize);

/// Returns `text` without the spaces and tabs at its ends. A carriage return stays.
QStringView trimmedBlanks(QStringView text);

/// Returns `bytes` decoded as UTF-8, with U+FFFD for each ill-formed sequence. Unlike
/// QString::fromUtf8(), keeps an initial byte order mark: `bytes` may be part of a longer text.
QString decodedUtf8(QByteArrayView bytes);

} // namespace Text
