// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

/// The settings that outlive the program, in a file of the form that QSettings reads: a line
/// `key=value` each, below `[General]`.
///
/// QSettings itself only reads it. As a writer it puts an empty file in place on a full disk, waits
/// for the disk twice, and opens a pipe, which would wait for its other end.
namespace StoredSettings {

/// Returns what is stored for `key`; an invalid value if nothing is, or if the file is not a
/// regular, readable one.
QVariant value(const QString& key);

/// Stores `value`, a text without any character that QSettings escapes, for `key`. The rest of the
/// file stays as it is. At every instant the file is complete, with the old value or the new one;
/// the disk is not waited for. Throws PlatformError.
void setValue(const QString& key, const QString& value);

} // namespace StoredSettings
