// SPDX-License-Identifier: MIT
#pragma once

/// The exit status of a process that could not have mounts of its own.
constexpr auto noOwnMounts = 77;

/// Gives the calling process, which has a single thread, mounts of its own: what it mounts is seen
/// by it and its children only. Returns false where the system refuses that. Linux only.
[[nodiscard]] bool separateMounts();
