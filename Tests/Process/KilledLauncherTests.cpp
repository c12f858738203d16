// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/ProcessState.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QThread>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class ChildOfAKilledLauncher : public testing::Test
{
protected:
    /// Has a launcher of its own start a child that goes on for long. Returns the child's id.
    qint64 startChild(const QString& lifetime)
    {
        m_launcher.start(QStringLiteral(CHILD_LAUNCHER),
                         {lifetime, u"/bin/sh"_s, u"-c"_s, u"echo $$ >\"$0\"; exec sleep 600"_s,
                          m_folder.path(u"id"_s)});
        EXPECT_TRUE(waitUntil(
            [this] { return m_folder.exists(u"id"_s) && m_folder.read(u"id"_s).endsWith('\n'); }));
        return m_folder.read(u"id"_s).trimmed().toLongLong();
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
    const auto child = startChild(u"ends"_s);
    ASSERT_TRUE(processRuns(child));
    killLauncher();
    EXPECT_TRUE(waitUntil([&] { return !processRuns(child); }));
}

TEST_F(ChildOfAKilledLauncher, goesOnWhenItIsTheGame)
{
    const auto child = startChild(u"outlives"_s);
    killLauncher();
    QThread::msleep(200);
    EXPECT_TRUE(processRuns(child));
    ::kill(static_cast<pid_t>(child), SIGKILL);
}

TEST(ChildOfALauncherThatExits, endsWithIt)
{
    QProcess launcher;
    launcher.start(QStringLiteral(EXITING_LAUNCHER));
    ASSERT_TRUE(waitUntil([&] { return launcher.state() == QProcess::NotRunning; }));
    EXPECT_EQ(launcher.exitStatus(), QProcess::NormalExit)
        << launcher.readAllStandardError().data();
    EXPECT_EQ(launcher.exitCode(), 7);
    const auto child = launcher.readAllStandardOutput().trimmed().toLongLong();
    ASSERT_GT(child, 0);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(child); }));
}

} // namespace
