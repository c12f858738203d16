// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

/// The settings, stored in an INI file that QSettings reads: lines `key=value` below `[General]`.
///
/// QSettings does not write it: on a full disk, the Qt 6.4 version leaves an empty file. It also
/// calls fsync() twice, and blocks on a named pipe.
namespace StoredSettings {

/// Returns the value of `key`; an invalid QVariant if there is none or the file cannot be read.
QVariant value(const QString& key);

/// Stores `value`, which must not contain characters that QSettings escapes. Keeps the other lines.
/// Replaces the file atomically, without fsync(). Throws PlatformError.
void setValue(const QString& key, const QString& value);

} // namespace StoredSettings
