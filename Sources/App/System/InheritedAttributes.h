// SPDX-License-Identifier: MIT
#pragma once

/// Process attributes inherited from the parent process that can break the launcher: closed
/// standard descriptors, a low limit of open files, signal actions and the signal mask.
namespace InheritedAttributes {

/// The lowest limit of open files (RLIMIT_NOFILE) that the launcher works with.
constexpr int minOpenFiles = 64;

/// Opens closed standard descriptors on the null device, raises the limit of open files, ignores
/// SIGXFSZ so that a write beyond the file size limit fails instead, resets SIGCHLD so that
/// children can be waited for, and unblocks SIGTERM, SIGINT and SIGHUP. Call it first in main().
/// Returns false if fewer than `minOpenFiles` files are allowed.
[[nodiscard]] bool replace();

/// Restores the inherited limit of open files and SIGXFSZ action in a child process. Only makes
/// system calls, so it may be called between fork and exec.
void restoreInChild() noexcept;

} // namespace InheritedAttributes
