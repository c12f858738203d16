// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Small text files of the game, read strictly.
namespace TextFile {

/// The most a text file of the game may hold; a larger one counts as unreadable, so that no single
/// file of the game can fill memory or hold up the window. How many such files a game has, and so
/// how long it takes to read all of them, is not bounded.
constexpr qint64 maximumSize = qint64{4} * 1024 * 1024;

/// The whole text of the regular file at `path`. Nothing when it is missing, unreadable, not a
/// regular file, larger than `maximumSize` or not well-formed UTF-8. A byte order mark at its
/// beginning is the file's signature and not text.
std::optional<QString> read(const QString& path);

/// `text` without the spaces and tabs at its ends. A carriage return stays.
QStringView trimmedBlanks(QStringView text);

} // namespace TextFile
