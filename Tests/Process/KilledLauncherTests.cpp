// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/ProcessState.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QThread>

#include <csignal>

namespace {

class ChildOfAKilledLauncher : public testing::Test
{
protected:
    /// Has a launcher of its own start a child that goes on for long; gives the child's id.
    qint64 startChild(const QString& lifetime)
    {
        m_launcher.start(QStringLiteral(CHILD_LAUNCHER),
                         {lifetime, QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                          QStringLiteral("echo $$ >\"$0\"; exec sleep 600"),
                          m_folder.path(QStringLiteral("id"))});
        EXPECT_TRUE(waitUntil([this] {
            return m_folder.exists(QStringLiteral("id")) &&
                   m_folder.read(QStringLiteral("id")).endsWith('\n');
        }));
        return m_folder.read(QStringLiteral("id")).trimmed().toLongLong();
    }

    void killLauncher()
    {
        m_launcher.kill();
        EXPECT_TRUE(waitUntil([this] { return m_launcher.state() == QProcess::NotRunning; }));
    }

    TestFolder m_folder;
    QProcess m_launcher;
};

TEST_F(ChildOfAKilledLauncher, endsWithIt)
{
    const auto child = startChild(QStringLiteral("ends"));
    ASSERT_TRUE(processRuns(child));
    killLauncher();
    EXPECT_TRUE(waitUntil([&] { return !processRuns(child); }));
}

TEST_F(ChildOfAKilledLauncher, goesOnWhenItIsTheGame)
{
    const auto child = startChild(QStringLiteral("outlives"));
    killLauncher();
    QThread::msleep(200);
    EXPECT_TRUE(processRuns(child));
    ::kill(static_cast<pid_t>(child), SIGKILL);
}

} // namespace
