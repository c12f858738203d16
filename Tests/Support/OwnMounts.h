// SPDX-License-Identifier: MIT
#pragma once

/// The exit status of a test process if separateMounts() failed.
constexpr auto noOwnMounts = 77;

/// Moves the calling process, which must have a single thread, to a new mount namespace with
/// private mounts. Returns false if the system does not allow it. Linux only.
[[nodiscard]] bool separateMounts();
