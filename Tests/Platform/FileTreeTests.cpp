// SPDX-License-Identifier: MIT
#include "Platform/FileTree.h"

#include "Platform/ExchangePaths.h"
#include "Platform/PlatformError.h"
#include "Support/TestFolder.h"
#include "Support/UnchangeableScope.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstddef>
#include <functional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#endif

namespace {

class FileTreeTest : public testing::Test
{
protected:
    TestFolder m_folder;
    const QString m_target = m_folder.path(QStringLiteral("Game"));
    const QString m_staging = m_folder.path(QStringLiteral("Game.new"));
    const QString m_aside = m_folder.path(QStringLiteral("Game.old"));
};

TEST_F(FileTreeTest, seesADanglingLink)
{
    EXPECT_FALSE(FileTree::exists(m_target));
    ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere"), m_target));
    EXPECT_TRUE(FileTree::exists(m_target));
}

TEST_F(FileTreeTest, removesAFolderWithEverythingInIt)
{
    m_folder.write(QStringLiteral("Game/a/.hidden/größe"));
    FileTree::remove(m_target);
    EXPECT_FALSE(FileTree::exists(m_target));
    FileTree::remove(m_target); // Nothing there is success.
}

TEST_F(FileTreeTest, removesALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(QStringLiteral("kept"), "content");
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    FileTree::remove(m_target);
    EXPECT_FALSE(FileTree::exists(m_target));
    EXPECT_TRUE(elsewhere.exists(QStringLiteral("kept")));
    m_folder.makeFolder(QStringLiteral("Game"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_folder.path(QStringLiteral("Game/link"))));
    FileTree::remove(m_target);
    EXPECT_TRUE(elsewhere.exists(QStringLiteral("kept")));
}

TEST_F(FileTreeTest, saysInASentenceWhatCannotBeRemoved)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "Only the administrator can make files that are somebody else's.";
    m_folder.write(QStringLiteral("Game/file"));
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    const auto child = ::fork();
    if (child == 0) {
        if (::setuid(65534) != 0)
            ::_exit(2);
        FileTree::removeQuietly(m_target);
        try {
            FileTree::remove(m_target);
        } catch (const PlatformError& error) {
            ::_exit(
                error.message() ==
                        QStringLiteral("Could not remove “%1”: Permission denied.").arg(m_target)
                    ? 0
                    : 3);
        }
        ::_exit(4);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Game/file")));
}

TEST_F(FileTreeTest, removesAtOnceAFolderAndLeavesNothingBehind)
{
    m_folder.write(QStringLiteral("Game/a/b"));
    FileTree::removeAtOnce(m_target, m_aside);
    EXPECT_EQ(m_folder.names(), QStringList());
    FileTree::removeAtOnce(m_target, m_aside); // Nothing there is success.
}

TEST_F(FileTreeTest, leavesNoPartInPlaceOfAFolderThatIsRemovedAtOnce)
{
    const UnchangeableScope stuck(m_folder.write(QStringLiteral("Game/a/stuck")));
    if (!stuck.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";
    m_folder.write(QStringLiteral("Game/b"));
    EXPECT_THROW(FileTree::removeAtOnce(m_target, m_aside), PlatformError);
    EXPECT_FALSE(FileTree::exists(m_target));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.old")), QStringList{QStringLiteral("a")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.old/a")), QStringList{QStringLiteral("stuck")});
}

TEST_F(FileTreeTest, removesAtOnceALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(QStringLiteral("kept"), "content");
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    FileTree::removeAtOnce(m_target, m_aside);
    EXPECT_EQ(m_folder.names(), QStringList());
    EXPECT_EQ(elsewhere.read(QStringLiteral("kept")), "content");
}

TEST_F(FileTreeTest, replacesAFolderAndLeavesNothingBehind)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging, m_aside);
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("new")});
}

TEST_F(FileTreeTest, movesAFolderToWhereNothingIs)
{
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging, m_aside);
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

TEST_F(FileTreeTest, replacesALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(QStringLiteral("kept"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging, m_aside);
    EXPECT_FALSE(QFileInfo(m_target).isSymLink());
    EXPECT_TRUE(elsewhere.exists(QStringLiteral("kept")));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

TEST_F(FileTreeTest, reportsAReplacementThatFailsAndKeepsTheStagingFolder)
{
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto target = m_folder.path(QStringLiteral("no such folder/Game"));
    try {
        FileTree::replace(target, m_staging, m_aside);
        FAIL() << "It succeeded.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  QStringLiteral("Could not move “%1” to “%2”: No such file or directory.")
                      .arg(m_staging, target));
    }
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Game.new/new")));
}

#if defined(Q_OS_LINUX)
/// From here on, has the system refuse one of its calls to this process with the given error.
bool forbid(unsigned systemCall, unsigned error)
{
    std::array filter{
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, systemCall, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// Does `action` in a process of its own, to which the system refuses the call, and gives the
/// sentence that it throws. It is empty when it throws nothing.
QString sentenceWithout(unsigned systemCall, unsigned error, const std::function<void()>& action)
{
    std::array<int, 2> pipe = {};
    EXPECT_EQ(::pipe(pipe.data()), 0);
    const auto child = ::fork();
    if (child == 0) {
        try {
            if (!forbid(systemCall, error))
                ::_exit(1);
            action();
        } catch (const PlatformError& thrown) {
            const auto sentence = thrown.message().toUtf8();
            const auto size = static_cast<std::size_t>(sentence.size());
            ::_exit(::write(pipe[1], sentence.constData(), size) == sentence.size() ? 0 : 2);
        }
        ::_exit(0);
    }
    ::close(pipe[1]);
    QFile output;
    EXPECT_TRUE(output.open(pipe[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
    const auto sentence = QString::fromUtf8(output.readAll());
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return sentence;
}

QString sentenceWithoutExchange(const std::function<void()>& action)
{
    return sentenceWithout(SYS_renameat2, EINVAL, action);
}

TEST_F(FileTreeTest, replacesAFolderWhereTheFileSystemCannotExchange)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto sentence = sentenceWithoutExchange([this] {
        if (exchangePaths(m_target, m_staging))
            ::_exit(3);
        FileTree::replace(m_target, m_staging, m_aside);
    });
    EXPECT_EQ(sentence, QString());
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("new")});
}

TEST_F(FileTreeTest, movesAFolderToWhereNothingIsAlsoWhereTheFileSystemCannotExchange)
{
    m_folder.write(QStringLiteral("Game.new/new"));
    EXPECT_EQ(sentenceWithoutExchange([this] { FileTree::replace(m_target, m_staging, m_aside); }),
              QString());
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

TEST_F(FileTreeTest, leavesNoPartOfTheOldFolderInPlaceWhereTheFileSystemCannotExchange)
{
    const UnchangeableScope stuck(m_folder.write(QStringLiteral("Game/old/stuck")));
    if (!stuck.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";
    m_folder.write(QStringLiteral("Game.new/new"));
    EXPECT_EQ(sentenceWithoutExchange([this] { FileTree::replace(m_target, m_staging, m_aside); }),
              QString());
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("new")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.old/old")), QStringList{QStringLiteral("stuck")});
}

TEST_F(FileTreeTest, putsTheOldFolderBackWhenTheNewOneCannotBeMoved)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    // No system moves a folder that is named so.
    const auto immovable = m_staging + QStringLiteral("/.");
    const auto sentence =
        sentenceWithoutExchange([&] { FileTree::replace(m_target, immovable, m_aside); });
    EXPECT_TRUE(sentence.startsWith(
        QStringLiteral("Could not move “%1” to “%2”: ").arg(immovable, m_target)))
        << sentence.toStdString();
    EXPECT_EQ(m_folder.names(), (QStringList{QStringLiteral("Game"), QStringLiteral("Game.new")}));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("old")});
}

TEST_F(FileTreeTest, touchesNothingWhenTheExchangeIsRefused)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto sentence = sentenceWithout(
        SYS_renameat2, EACCES, [this] { FileTree::replace(m_target, m_staging, m_aside); });
    EXPECT_EQ(sentence, QStringLiteral("Could not exchange “%1” and “%2”: Permission denied.")
                            .arg(m_staging, m_target));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("old")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.new")), QStringList{QStringLiteral("new")});
}
#endif

TEST_F(FileTreeTest, exchangesTwoFolders)
{
    m_folder.write(QStringLiteral("Game/a"));
    m_folder.write(QStringLiteral("Game.new/b"));
    ASSERT_TRUE(exchangePaths(m_target, m_staging));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("b")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.new")), QStringList{QStringLiteral("a")});
}

TEST_F(FileTreeTest, exchangesNothingWhenOneOfTheTwoIsMissing)
{
    m_folder.write(QStringLiteral("Game/a"));
    EXPECT_FALSE(exchangePaths(m_target, m_staging));
    EXPECT_FALSE(exchangePaths(m_staging, m_target));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

} // namespace
