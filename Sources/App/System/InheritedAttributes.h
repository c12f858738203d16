// SPDX-License-Identifier: MIT
#pragma once

/// The attributes of the process that come from its parent process, where they would break the
/// launcher: closed standard descriptors, a low limit of open files, and the treatment of signals.
namespace InheritedAttributes {

/// The fewest open files at a time that the launcher can work with.
constexpr int minOpenFiles = 64;

/// Opens the closed standard descriptors on the null device, raises the limit of open files as far
/// as allowed and needed, has a write beyond the limit of a file's size fail instead of ending the
/// process, makes the exit statuses of children known, and unblocks the signals that end a program.
/// To be called first of all. Returns false if fewer than `minOpenFiles` are allowed.
[[nodiscard]] bool replace();

/// Restores the inherited limit of open files and the action of SIGXFSZ in a child, if replace()
/// has changed them. To be called between fork and exec: it only makes system calls.
void restoreInChild() noexcept;

} // namespace InheritedAttributes
