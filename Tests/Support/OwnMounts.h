// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QString>

/// The exit status of a test process if separateMounts() failed.
constexpr auto noOwnMounts = 77;

/// Moves the calling process, which must have a single thread, to a new mount namespace with
/// private mounts. Returns false if the system does not allow it. Linux only.
[[nodiscard]] bool separateMounts();

/// Mounts an overlay over `folder`, whose present content becomes the lower layer. The upper layer
/// is made in `layers`. Returns false if the system does not allow it. Linux only.
[[nodiscard]] bool mountOverlay(const QString& folder, const QString& layers);

/// Whether the process is one of runAgainWithOwnMounts().
[[nodiscard]] bool hasOwnMounts();

/// Runs the current test once more, in a process with mounts of its own, and returns its exit
/// status, or `noOwnMounts`. Linux only.
[[nodiscard]] int runAgainWithOwnMounts();

/// Continues the current test only in a process with mounts of its own.
#define RUN_WITH_OWN_MOUNTS()                                                                      \
    if (!hasOwnMounts()) {                                                                         \
        const auto status = runAgainWithOwnMounts();                                               \
        if (status == noOwnMounts)                                                                 \
            GTEST_SKIP() << "This system allows no mount here.";                                   \
        EXPECT_EQ(status, 0);                                                                      \
        return;                                                                                    \
    }
