// SPDX-License-Identifier: MIT
#include "Platform/FileTree.h"

#include "Platform/ExchangePaths.h"
#include "Platform/PlatformError.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstddef>

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

TEST_F(FileTreeTest, replacesAFolderAndLeavesNothingBehind)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging);
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("new")});
}

TEST_F(FileTreeTest, movesAFolderToWhereNothingIs)
{
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging);
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

TEST_F(FileTreeTest, replacesALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(QStringLiteral("kept"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    m_folder.write(QStringLiteral("Game.new/new"));
    FileTree::replace(m_target, m_staging);
    EXPECT_FALSE(QFileInfo(m_target).isSymLink());
    EXPECT_TRUE(elsewhere.exists(QStringLiteral("kept")));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
}

TEST_F(FileTreeTest, reportsAReplacementThatFailsAndKeepsTheStagingFolder)
{
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto target = m_folder.path(QStringLiteral("no such folder/Game"));
    try {
        FileTree::replace(target, m_staging);
        FAIL() << "It succeeded.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  QStringLiteral("Could not move “%1” to “%2”: No such file or directory.")
                      .arg(m_staging, target));
    }
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Game.new/new")));
}

#if defined(Q_OS_LINUX)
/// Has the system refuse this process to exchange two paths, as some file systems do.
bool forbidExchange()
{
    std::array filter{
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EINVAL),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

TEST_F(FileTreeTest, replacesAFolderWhereTheFileSystemCannotExchange)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto child = ::fork();
    if (child == 0) {
        if (!forbidExchange() || exchangePaths(m_target, m_staging))
            ::_exit(1);
        FileTree::replace(m_target, m_staging);
        ::_exit(0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Game")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("new")});
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
