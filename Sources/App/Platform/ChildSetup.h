// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

/// What a new child process does to itself before it becomes another program. It is then a copy of
/// a program with several threads, so every function here does nothing but make system calls.
namespace ChildSetup {

/// Makes the child the leader of a process group of its own, so that it can be ended together with
/// what it starts.
void leadOwnGroup() noexcept;

/// Has the system kill the child when the thread that started it ends, and with it the process
/// `parent`; kills it now if that process is gone already. Does nothing where the system cannot.
void endWithParent(pid_t parent) noexcept;

/// Sends standard output and standard error to `descriptor`.
void sendOutputTo(int descriptor) noexcept;

/// Sees to it that the program gets the three standard descriptors and no other: a library may have
/// opened one without marking it.
void withholdOtherDescriptors() noexcept;

/// Lets every signal through, whatever the starting thread had blocked.
void unblockSignals() noexcept;

/// Lets a write to a pipe that nobody reads fail instead of ending the child.
void ignoreBrokenPipes() noexcept;

} // namespace ChildSetup
