// SPDX-License-Identifier: MIT
#pragma once

#include "Process/ManagedProcess.h"
#include "Support/Await.h"
#include "Support/CollectedLines.h"

#include <gtest/gtest.h>

/// Runs shell scripts as children and collects their output.
class ChildTest : public testing::Test
{
protected:
    /// The shell's arguments that have it run `script`.
    static QStringList shell(const char* script)
    {
        return {QStringLiteral("-c"), QString::fromUtf8(script)};
    }

    QFuture<int> startShell(const char* script)
    {
        return m_process.run(QStringLiteral("/bin/sh"), shell(script), m_output.callback());
    }

    int runShell(const char* script) { return await(startShell(script)); }

    [[nodiscard]] QStringList lines() const { return m_output.lines(); }

    bool waitForLines(qsizetype count)
    {
        return waitUntil([this, count] { return lines().size() >= count; });
    }

    CollectedLines m_output;
    // The grace is longer than any test: a child that ends because it was killed fails it.
    ManagedProcess m_process{ManagedProcess::Lifetime::endsWithLauncher, std::chrono::minutes{10}};
};
