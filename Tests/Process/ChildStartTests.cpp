// SPDX-License-Identifier: MIT
#include "ChildTest.h"

#include "Platform/FileDescriptor.h"
#include "Platform/PlatformError.h"
#include "Platform/ServiceThread.h"
#include "Support/TestFolder.h"

#include <QDir>
#include <QPromise>

#include <csignal>
#include <memory>

#include <fcntl.h>

namespace {

using StartOfAChild = ChildTest;

/// The signal's bit in the masks that the system shows.
constexpr qulonglong brokenPipeBit = 1ULL << (SIGPIPE - 1);

TEST_F(StartOfAChild, ofAMissingProgramIsReportedInASentence)
{
    try {
        await(m_process.run(QStringLiteral("/nowhere/program"), {}, m_output.callback()));
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message().toStdString(),
                  "Could not start “/nowhere/program”: No such file or directory.");
    }
    EXPECT_EQ(lines(), QStringList());
    EXPECT_FALSE(m_process.isRunning());
}

TEST_F(StartOfAChild, ofAFileThatIsNoProgramIsReportedInASentence)
{
    const TestFolder folder;
    const auto file = folder.write(QStringLiteral("data"), "no program");
    try {
        await(m_process.run(file, {}, m_output.callback()));
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  QStringLiteral("Could not start “%1”: Permission denied.").arg(file));
    }
}

TEST_F(StartOfAChild, passesArgumentsUnchanged)
{
    const QStringList arguments{QStringLiteral("%s\\n"), QStringLiteral("two words"),
                                QStringLiteral("$HOME \"quoted\" 'x'"), QString(),
                                QStringLiteral("größe €")};
    await(m_process.run(QStringLiteral("/usr/bin/printf"), arguments, m_output.callback()));
    EXPECT_EQ(lines(), arguments.sliced(1));
}

TEST_F(StartOfAChild, takesAProgramWhoseNameIsNotAscii)
{
    const TestFolder folder;
    const auto script = folder.writeScript(QStringLiteral("Spiel „€“ ✓/läuft nicht?"), "echo $0");
    EXPECT_EQ(await(m_process.run(script, {}, m_output.callback())), 0);
    EXPECT_EQ(lines(), QStringList{script});
}

TEST_F(StartOfAChild, givesTheChildTheNullDeviceAsStandardInput)
{
    runShell("readlink /proc/$$/fd/0");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("/dev/null")});
}

TEST_F(StartOfAChild, givesTheChildItsEnvironmentAndWorkingFolder)
{
    qputenv("CAVERNYX_TEST_VALUE", "inherited");
    runShell("echo $CAVERNYX_TEST_VALUE; pwd");
    qunsetenv("CAVERNYX_TEST_VALUE");
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("inherited"), QDir::currentPath()}));
}

TEST_F(StartOfAChild, givesTheChildNoOtherDescriptor)
{
    const FileDescriptor leaking(::open("/dev/null", O_RDONLY)); // NOLINT: must not be marked
    ASSERT_TRUE(leaking.isOpen());
    // Far away from any descriptor that the child might open itself.
    const FileDescriptor distant(::fcntl(leaking.get(), F_DUPFD, 200));
    ASSERT_TRUE(distant.isOpen());
    runShell("ls -v /proc/$$/fd");
    EXPECT_EQ(lines(),
              (QStringList{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")}));
}

TEST_F(StartOfAChild, makesTheChildLeaderOfItsOwnGroup)
{
    runShell("echo $$; cut -d' ' -f5 /proc/$$/stat");
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().first(), lines().last());
}

TEST_F(StartOfAChild, letsEverySignalThroughToTheChild)
{
    const auto setMask = [](int how) {
        const auto done = std::make_shared<QPromise<void>>();
        auto future = done->future();
        ServiceThread::children().post([how, done] {
            sigset_t set;
            sigemptyset(&set);
            sigaddset(&set, SIGTERM);
            pthread_sigmask(how, &set, nullptr);
            done->start();
            done->finish();
        });
        future.waitForFinished();
    };
    setMask(SIG_BLOCK);
    // Not by way of the shell, which lets every signal through itself.
    await(m_process.run(QStringLiteral("/bin/grep"),
                        {QStringLiteral("SigBlk"), QStringLiteral("/proc/self/status")},
                        m_output.callback()));
    setMask(SIG_UNBLOCK);
    EXPECT_EQ(lines(), QStringList{QStringLiteral("SigBlk:\t0000000000000000")});
}

TEST_F(StartOfAChild, leavesBrokenPipesDeadlyToATool)
{
    runShell("grep SigIgn /proc/self/status");
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

TEST_F(StartOfAChild, sparesTheGameFromBrokenPipes)
{
    ManagedProcess game(ManagedProcess::Lifetime::mayOutliveLauncher);
    await(game.run(QStringLiteral("/bin/sh"), shell("grep SigIgn /proc/self/status"),
                   m_output.callback()));
    ASSERT_EQ(lines().size(), 1);
    EXPECT_NE(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

} // namespace
