// SPDX-License-Identifier: MIT
#include "ChildTest.h"

#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"
#include "System/Errors.h"
#include "System/FileDescriptor.h"

#include <QDir>
#include <QProcess>

#include <cerrno>
#include <csignal>
#include <thread>

#include <fcntl.h>

namespace {

using StartOfAChild = ChildTest;

/// Has every later start of a thread in this process fail: its stack would not fit.
void startNoMoreThreads()
{
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, std::size_t{1} << 47);
    ::pthread_setattr_default_np(&attributes);
}

/// The bits of these signals in the masks that the system shows.
constexpr qulonglong brokenPipeBit = 1ULL << (SIGPIPE - 1);
constexpr qulonglong fileSizeBit = 1ULL << (SIGXFSZ - 1);

TEST_F(StartOfAChild, ofAMissingProgramIsReportedInASentence)
{
    try {
        run(u"/nowhere/program"_s);
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  u"Could not start “/nowhere/program”: No such file or directory.");
    }
    EXPECT_EQ(lines(), QStringList());
    EXPECT_FALSE(m_process->isRunning());
}

TEST_F(StartOfAChild, ofAFileThatIsNoProgramIsReportedInASentence)
{
    const TestFolder folder;
    const auto file = folder.write(u"data"_s, "no program");
    try {
        run(file);
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(), u"Could not start “%1”: Permission denied."_s.arg(file));
    }
}

TEST_F(StartOfAChild, leavesNoneBehindWhereNoThreadCanBeStarted)
{
    const auto status = inAnotherProcess([this] {
        startNoMoreThreads();
        try {
            run(u"/bin/sleep"_s, {u"600"_s});
            return 1;
        } catch (const PlatformError&) {
            return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD ? 0 : 2;
        }
    });
    EXPECT_EQ(status, 0);
}

TEST_F(StartOfAChild, passesArgumentsUnchanged)
{
    const QStringList arguments{u"%s\\n"_s, u"two words"_s, u"$HOME \"quoted\" 'x'"_s, QString(),
                                u"größe €"_s};
    run(u"/usr/bin/printf"_s, arguments);
    EXPECT_EQ(lines(), arguments.sliced(1));
}

TEST_F(StartOfAChild, takesAProgramWhoseNameIsNotAscii)
{
    const TestFolder folder;
    const auto script = folder.writeScript(u"Spiel „€“ ✓/läuft nicht?"_s, "echo $0");
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(lines(), QStringList{script});
}

TEST_F(StartOfAChild, connectsStandardInputToTheNullDevice)
{
    runShell("readlink /proc/$$/fd/0");
    EXPECT_EQ(lines(), QStringList{u"/dev/null"_s});
}

TEST_F(StartOfAChild, passesOnTheEnvironmentAndWorkingFolder)
{
    qputenv("CAVERNYX_TEST_VALUE", "inherited");
    runShell("echo $CAVERNYX_TEST_VALUE; pwd");
    qunsetenv("CAVERNYX_TEST_VALUE");
    EXPECT_EQ(lines(), (QStringList{u"inherited"_s, QDir::currentPath()}));
}

TEST_F(StartOfAChild, passesNoOtherDescriptor)
{
    const FileDescriptor leaking(::open("/dev/null", O_RDONLY)); // NOLINT: must not be marked
    ASSERT_TRUE(leaking.isOpen());
    // Far away from any descriptor that the child might open itself.
    const FileDescriptor distant(::fcntl(leaking.get(), F_DUPFD, 200));
    ASSERT_TRUE(distant.isOpen());
    runShell("ls -v /proc/$$/fd");
    EXPECT_EQ(lines(), (QStringList{u"0"_s, u"1"_s, u"2"_s}));
}

TEST_F(StartOfAChild, makesTheChildLeaderOfItsOwnGroup)
{
    runShell("echo $$; cut -d' ' -f5 /proc/$$/stat");
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().first(), lines().last());
}

TEST_F(StartOfAChild, letsEverySignalThroughToTheChild)
{
    std::thread([this] {
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &set, nullptr);
        // Not by way of the shell, which lets every signal through itself.
        run(u"/bin/grep"_s, {u"SigBlk"_s, u"/proc/self/status"_s});
    }).join();
    EXPECT_EQ(lines(), QStringList{u"SigBlk:\t0000000000000000"_s});
}

TEST(ChildOfALauncherWithLimits, getsTheLimitsThatTheLauncherInherited)
{
    QProcess launcher;
    launcher.start(u"/bin/sh"_s,
                   {u"-c"_s,
                    u"ulimit -Sn 99; exec \"$0\" ends /bin/sh -c 'ulimit -n; ulimit -Hn; "
                    "grep SigIgn /proc/self/status'"_s,
                    QStringLiteral(CHILD_LAUNCHER)});
    ASSERT_TRUE(waitUntil([&] { return launcher.state() == QProcess::NotRunning; }));
    const auto lines = launcher.readAllStandardOutput().split('\n');
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines[0], "99");
    EXPECT_NE(lines[1], "99");
    EXPECT_EQ(lines[2].split('\t').last().toULongLong(nullptr, 16) & fileSizeBit, 0U);
}

TEST_F(StartOfAChild, leavesBrokenPipesDeadlyToATool)
{
    runShell("grep SigIgn /proc/self/status");
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

TEST_F(StartOfAChild, sparesTheGameFromBrokenPipes)
{
    m_game->run(u"/bin/sh"_s, shell("grep SigIgn /proc/self/status"), m_output.callback());
    ASSERT_EQ(lines().size(), 1);
    EXPECT_NE(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

} // namespace
