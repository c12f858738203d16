// SPDX-License-Identifier: MIT
#include "Platform/FileTree.h"

#include "Platform/Cancelled.h"
#include "Platform/ExchangePaths.h"
#include "Platform/PlatformError.h"
#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"
#include "Support/UnchangeableScope.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <functional>
#include <stop_token>

#include <sys/stat.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include "Support/WithoutSystemCall.h"

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
    const auto status = inAnotherProcess([this] {
        if (::setuid(65534) != 0)
            return 2;
        FileTree::removeQuietly(m_target);
        try {
            FileTree::remove(m_target);
        } catch (const PlatformError& error) {
            return error.message() ==
                           QStringLiteral("Could not remove “%1”: Permission denied.").arg(m_target)
                       ? 0
                       : 3;
        }
        return 4;
    });
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

TEST_F(FileTreeTest, replacesNothingWhenCancelled)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(FileTree::replace(m_target, m_staging, m_aside, stop.get_token()), Cancelled);
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("old")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.new")), QStringList{QStringLiteral("new")});
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

TEST_F(FileTreeTest, writesTheNewFolderToTheDiskBeforeItTouchesTheOldOne)
{
    m_folder.write(QStringLiteral("Game/old"));
    m_folder.write(QStringLiteral("Game.new/new"));
    const auto sentence = sentenceWithout(
        SYS_syncfs, EIO, [this] { FileTree::replace(m_target, m_staging, m_aside); });
    EXPECT_EQ(
        sentence,
        QStringLiteral("Could not write “%1” to the disk: Input/output error.").arg(m_staging));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("old")});
    EXPECT_EQ(m_folder.names(QStringLiteral("Game.new")), QStringList{QStringLiteral("new")});
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
