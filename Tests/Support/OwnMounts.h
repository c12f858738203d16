// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The exit status of a test process if separateMounts() failed.
constexpr auto noOwnMounts = 77;

/// Moves the calling process, which must have a single thread, to a new mount namespace with
/// private mounts. Returns false if the system does not allow it. Linux only.
[[nodiscard]] bool separateMounts();

/// Mounts an overlay over `folder`, whose present content becomes the lower layer. The upper layer
/// is made in `layers`. Returns false if the system does not allow it. Linux only.
[[nodiscard]] bool mountOverlay(const QString& folder, const QString& layers);
