// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

/// The text files of the game, and text in general, read by the same rules everywhere.
namespace Text {

/// The maximum size of a text file that is read, so that no file of a game can fill memory.
constexpr qint64 maxFileSize = qint64{64} * 1024 * 1024;

/// Returns the whole text of the regular file at `path`; nothing if it is missing, unreadable, not
/// a regular file, larger than `maxSize` bytes or not well-formed UTF-8. A byte order mark at its
/// beginning is the file's signature and not text.
std::optional<QString> readFile(const QString& path, qint64 maxSize = maxFileSize);

/// Returns `text` without the spaces and tabs at its ends. A carriage return stays.
QStringView trimmedBlanks(QStringView text);

/// Returns `bytes` decoded as UTF-8, every ill-formed sequence as U+FFFD. A byte order mark is a
/// character like any other, so that the text does not depend on where the bytes are cut;
/// QString::fromUtf8() would leave it out at the beginning.
QString decodedUtf8(QByteArrayView bytes);

} // namespace Text
