// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// The launcher's work on files, each piece done once, timed and reported. All throw what the
/// measured operation throws.
namespace DiskWork {

/// Digests `file`; reports the number of digits.
void digest(const QString& file);
/// Unpacks `archive` into `folder`.
void unpack(const QString& archive, const QString& folder);
/// Reports the bytes allocated below `folder`.
void size(const QString& folder);
/// Reports how many assets below `folder` are still to import.
void missing(const QString& folder);

} // namespace DiskWork
