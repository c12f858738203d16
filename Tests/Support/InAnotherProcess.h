// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a forked process, for changes to the whole process: its user, its signals, its
/// system calls. Returns the result of `work`, or the negative number of the signal that ended the
/// process; an exception ends it by SIGABRT. Failed expectations inside `work` are not reported,
/// and changes to variables are lost.
inline int inAnotherProcess(const std::function<int()>& work)
{
    const auto child = ::fork();
    if (child == 0) {
        try {
            ::_exit(work());
        } catch (...) {
            std::abort(); // The child must not run the next test.
        }
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}
