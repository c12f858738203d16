// SPDX-License-Identifier: MIT
#include "System/InstallationLock.h"

#include "Support/InAnotherProcess.h"
#include "Support/OtherProcess.h"
#include "Support/TestFolder.h"
#include "System/Errors.h"

#include <gtest/gtest.h>

#include <QFile>

#include <csignal>
#include <cstdio>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void say(int answer, const char* line)
{
    std::ignore = ::write(answer, line, std::char_traits<char>::length(line));
}

void awaitOrder(int orders)
{
    char next = 0;
    std::ignore = ::read(orders, &next, 1);
}

class InstallationLockTest : public testing::Test
{
protected:
    /// What another launcher gets when it claims the lock now: 1 for yes.
    int otherClaims()
    {
        return inAnotherProcess([this] { return InstallationLock(m_path).tryAcquire() ? 1 : 0; });
    }

    /// What acquire() says; empty if it succeeds.
    static QString refusal(InstallationLock& lock)
    {
        try {
            lock.acquire();
            return {};
        } catch (const PlatformError& error) {
            return error.message();
        }
    }

    const TestFolder m_folder;
    const QString m_path = m_folder.path(u"new folder/lock"_s);
};

TEST_F(InstallationLockTest, isClaimedByOneProcessOnly)
{
    InstallationLock lock(m_path);
    EXPECT_EQ(otherClaims(), 1) << "to have the file open is no claim";
    EXPECT_FALSE(lock.isHeld());
    EXPECT_TRUE(lock.tryAcquire());
    EXPECT_TRUE(lock.isHeld());
    EXPECT_TRUE(lock.tryAcquire()) << "it is still this process's own";
    EXPECT_EQ(otherClaims(), 0);
}

TEST_F(InstallationLockTest, isFreeAgainWhenItsHolderWasKilled)
{
    OtherProcess holder([this](int answer, int orders) {
        InstallationLock lock(m_path);
        say(answer, lock.tryAcquire() ? "claimed\n" : "refused\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(holder.answer(), "claimed");
    InstallationLock lock(m_path);
    EXPECT_FALSE(lock.tryAcquire());
    EXPECT_TRUE(lock.isHeldByOther());
    holder.kill();
    EXPECT_EQ(holder.end(), -1);
    EXPECT_TRUE(lock.tryAcquire());
    EXPECT_TRUE(lock.isHeld());
}

TEST_F(InstallationLockTest, leavesNoFileBehind)
{
    {
        InstallationLock lock(m_path);
        EXPECT_TRUE(m_folder.exists(u"new folder/lock"_s));
        EXPECT_TRUE(lock.tryAcquire());
    }
    EXPECT_FALSE(m_folder.exists(u"new folder/lock"_s));
}

TEST_F(InstallationLockTest, canBeReleasedBeforeItsEnd)
{
    InstallationLock lock(m_path);
    ASSERT_TRUE(lock.tryAcquire());
    OtherProcess waiting([this](int answer, int orders) {
        InstallationLock others(m_path);
        say(answer, others.tryAcquire() ? "claimed\n" : "refused\n");
        awaitOrder(orders);
        say(answer, others.tryAcquire() ? "claimed\n" : "refused\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(waiting.answer(), "refused");
    lock.release();
    EXPECT_FALSE(lock.isHeld());
    EXPECT_FALSE(QFile::exists(m_path));
    waiting.order();
    EXPECT_EQ(waiting.answer(), "claimed");
    lock.release();
    EXPECT_TRUE(QFile::exists(m_path)) << "it is the next launcher's";
}

TEST_F(InstallationLockTest, leavesTheFileOfAnotherLauncherAlone)
{
    {
        InstallationLock lock(m_path);
        ASSERT_TRUE(lock.tryAcquire());
        EXPECT_EQ(otherClaims(), 0);
        EXPECT_TRUE(m_folder.exists(u"new folder/lock"_s));
        ASSERT_TRUE(QFile::remove(m_path));
        m_folder.write(u"new folder/lock"_s);
    }
    EXPECT_TRUE(m_folder.exists(u"new folder/lock"_s))
        << "somebody removed the file, and another launcher made a new one";
}

TEST_F(InstallationLockTest, isClaimedOnTheFileThatIsThereNow)
{
    auto first = std::make_unique<InstallationLock>(m_path);
    ASSERT_TRUE(first->tryAcquire());
    OtherProcess second([this](int answer, int orders) {
        InstallationLock lock(m_path);
        say(answer, "open\n");
        awaitOrder(orders);
        say(answer, lock.tryAcquire() ? "claimed\n" : "refused\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(second.answer(), "open");
    first.reset();
    second.order();
    ASSERT_EQ(second.answer(), "claimed");
    EXPECT_EQ(otherClaims(), 0) << "who comes now finds the file that is locked";
}

TEST_F(InstallationLockTest, knowsARunningGameUntilItsEndHoweverItEnds)
{
    auto lock = std::make_unique<InstallationLock>(m_path);
    ASSERT_TRUE(lock->tryAcquire());
    EXPECT_FALSE(lock->isGameRunning());
    OtherProcess game([&lock](int answer, int orders) {
        InstallationLock::acquireAsGame(lock->descriptor());
        say(answer, "held\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(game.answer(), "held");
    EXPECT_TRUE(lock->isGameRunning());
    lock.reset();
    EXPECT_TRUE(m_folder.exists(u"new folder/lock"_s)) << "the game still uses it";

    InstallationLock next(m_path);
    EXPECT_TRUE(next.tryAcquire()) << "a game is no launcher";
    EXPECT_TRUE(next.isGameRunning());
    game.kill();
    EXPECT_EQ(game.end(), -1);
    EXPECT_FALSE(next.isGameRunning());
}

TEST_F(InstallationLockTest, takesOnlyTheGameItselfForTheGame)
{
    const InstallationLock lock(m_path);
    OtherProcess game([&lock](int answer, int orders) {
        InstallationLock::acquireAsGame(lock.descriptor());
        ::dup2(answer, STDOUT_FILENO);
        ::dup2(orders, STDIN_FILENO);
        // It becomes another program and starts a third one that goes on.
        ::execl("/bin/sh", "sh", "-c", "sleep 600 >/dev/null & echo $!; read line", nullptr);
        return 1;
    });
    const auto helper = game.answer().toInt();
    ASSERT_GT(helper, 0);
    EXPECT_TRUE(lock.isGameRunning());
    std::ignore = game.end();
    EXPECT_FALSE(lock.isGameRunning());
    EXPECT_EQ(::kill(helper, SIGKILL), 0) << "it was still there";
}

TEST_F(InstallationLockTest, isNotHeldWhereItCannotBeMade)
{
    m_folder.write(u"a file"_s);
    ASSERT_TRUE(QFile::link(m_folder.path(u"a file"_s), m_folder.path(u"link"_s)));
    for (const auto& [name, reason] : {std::pair(u"a folder"_s, u"Is a directory"_s),
                                       std::pair(u"link"_s, u"Too many levels of symbolic links"_s),
                                       std::pair(u"a file/lock"_s, u"Not a directory"_s)}) {
        const auto path = m_folder.path(name);
        m_folder.makeFolder(u"a folder"_s);
        InstallationLock lock(path);
        EXPECT_FALSE(lock.tryAcquire());
        EXPECT_FALSE(lock.isHeldByOther());
        EXPECT_FALSE(lock.isHeld());
        EXPECT_FALSE(lock.isGameRunning());
        EXPECT_LT(lock.descriptor(), 0);
        EXPECT_EQ(refusal(lock),
                  u"Could not lock “%1”, without which nothing is installed or removed: %2."_s.arg(
                      path, reason));
    }
    EXPECT_TRUE(m_folder.exists(u"a folder"_s));
    EXPECT_TRUE(m_folder.exists(u"link"_s));
}

TEST_F(InstallationLockTest, isNotHeldWhereThePlayerMayNotWrite)
{
    const auto folder = m_folder.makeFolder(u"read-only"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    EXPECT_EQ(inAnotherProcess([this] {
                  if (::geteuid() == 0 && ::setuid(65534) != 0)
                      return 1;
                  InstallationLock lock(m_folder.path(u"read-only/lock"_s));
                  return !lock.tryAcquire() && refusal(lock).endsWith(u": Permission denied.") ? 0
                                                                                               : 1;
              }),
              0);
}

TEST_F(InstallationLockTest, isTakenAgainWhenItsFileWasRemovedOrReplaced)
{
    InstallationLock lock(m_path);
    ASSERT_TRUE(lock.tryAcquire());
    for (const auto isReplaced : {false, true}) {
        ASSERT_TRUE(QFile::remove(m_path));
        if (isReplaced)
            m_folder.write(u"new folder/lock"_s);
        EXPECT_FALSE(lock.isHeld());
        EXPECT_EQ(refusal(lock), QString());
        EXPECT_TRUE(lock.isHeld());
        EXPECT_EQ(otherClaims(), 0);
    }
}

TEST_F(InstallationLockTest, isAnotherLaunchersWhoTookItAfterItsFileWasRemoved)
{
    InstallationLock lock(m_path);
    ASSERT_TRUE(lock.tryAcquire());
    ASSERT_TRUE(QFile::remove(m_path));
    OtherProcess other([this](int answer, int orders) {
        InstallationLock others(m_path);
        say(answer, others.tryAcquire() ? "claimed\n" : "refused\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(other.answer(), "claimed");
    EXPECT_EQ(refusal(lock), u"The launcher is running a second time. Close the other one first.");
    EXPECT_FALSE(lock.isHeld());
    EXPECT_EQ(other.end(), 0);
    EXPECT_EQ(refusal(lock), QString());
}

TEST_F(InstallationLockTest, isNotTakenAgainWhileAGameUsesTheFileThatWasRemoved)
{
    InstallationLock lock(m_path);
    ASSERT_TRUE(lock.tryAcquire());
    OtherProcess game([&lock](int answer, int orders) {
        InstallationLock::acquireAsGame(lock.descriptor());
        say(answer, "held\n");
        awaitOrder(orders);
        return 0;
    });
    ASSERT_EQ(game.answer(), "held");
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_TRUE(refusal(lock).endsWith(u": Device or resource busy."));
    EXPECT_TRUE(lock.isGameRunning());
    EXPECT_EQ(game.end(), 0);
    EXPECT_EQ(refusal(lock), QString());
}

} // namespace
