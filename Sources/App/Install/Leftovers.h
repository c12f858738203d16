// SPDX-License-Identifier: MIT
#pragma once

#include <QFuture>

#include <stop_token>

class SessionLock;

/// What launchers that were killed have left behind: the folders they were putting together or
/// deleting, and their temporary folders.
namespace Leftovers {

/// Clears it away, on the thread pool; what cannot be removed stays. For the start of the program,
/// before it makes such folders of its own. Gives whether the storage root is changed by that.
///
/// Staging folders are nobody's, and go, when `session` is claimed and no game runs. Of the
/// temporary folders those of this user go whose owner is gone.
///
/// Once `stop` is requested, no further folder is begun with; the next start goes on.
QFuture<bool> clear(const SessionLock& session, const std::stop_token& stop = {});

} // namespace Leftovers
