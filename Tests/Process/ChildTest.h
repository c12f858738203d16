// SPDX-License-Identifier: MIT
#pragma once

#include "Process/ManagedProcess.h"
#include "Support/Await.h"
#include "Support/CollectedLines.h"
#include "System/OffThread.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

/// Runs shell scripts as children and collects their output.
class ChildTest : public testing::Test
{
protected:
    /// The shell's arguments that have it run `script`.
    static QStringList shell(const char* script) { return {u"-c"_s, QString::fromUtf8(script)}; }

    /// Runs a program on a worker thread.
    static QFuture<int> start(const std::shared_ptr<ManagedProcess>& process,
                              const QString& program, const QStringList& arguments,
                              const LogCallback& onLines)
    {
        return offThread([=] { return process->run(program, arguments, onLines); });
    }

    QFuture<int> startShell(const char* script)
    {
        return start(m_process, u"/bin/sh"_s, shell(script), m_output.callback());
    }

    int runShell(const char* script)
    {
        return m_process->run(u"/bin/sh"_s, shell(script), m_output.callback());
    }

    int run(const QString& program, const QStringList& arguments = {})
    {
        return m_process->run(program, arguments, m_output.callback());
    }

    [[nodiscard]] QStringList lines() const { return m_output.lines(); }

    bool waitForLines(qsizetype count)
    {
        return waitUntil([this, count] { return lines().size() >= count; });
    }

    CollectedLines m_output;
    // The timeout is longer than any test: a child that ends because it was killed fails it.
    std::shared_ptr<ManagedProcess> m_process = std::make_shared<ManagedProcess>(
        ManagedProcess::Lifetime::endsWithLauncher, std::chrono::minutes{10});
    std::shared_ptr<ManagedProcess> m_game = std::make_shared<ManagedProcess>(
        ManagedProcess::Lifetime::mayOutliveLauncher, std::chrono::minutes{10});
};
