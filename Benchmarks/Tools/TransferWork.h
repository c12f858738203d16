// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QUrl;

/// The launcher's work with other programs, done once, timed and reported, while an event loop
/// runs on the main thread as in the launcher. All throw what the measured operation throws.
namespace TransferWork {

/// Downloads `url` into `folder`.
void download(const QUrl& url, const QString& folder);
/// Runs `program` to its end with its output going to a log; reports the lines the log then holds.
void flood(const QString& program, const QStringList& arguments);

} // namespace TransferWork
