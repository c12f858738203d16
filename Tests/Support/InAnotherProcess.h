// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/// Does `work` in a copy of the test that ends with it, as for what changes the whole process: its
/// user, its signals, its system calls. Returns the status that `work` returns, or below zero the
/// signal that ended the copy; an exception ends it by SIGABRT. A failed expectation inside `work`
/// goes unheard, and what it writes to variables is lost.
inline int inAnotherProcess(const std::function<int()>& work)
{
    const auto child = ::fork();
    if (child == 0) {
        try {
            ::_exit(work());
        } catch (...) {
            std::abort(); // The copy must not go on to the next test.
        }
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}
