// SPDX-License-Identifier: MIT
#include "System/FileTree.h"

#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"
#include "Support/UnchangeableScope.h"
#include "System/Errors.h"

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

using namespace Qt::StringLiterals;

namespace {

class FileTreeTest : public testing::Test
{
protected:
    /// An old folder and a new one in its staging place.
    void writeBoth() const
    {
        m_folder.write(u"Game/old"_s);
        m_folder.write(u"Game.new/new"_s);
    }
    void replace() const { FileTree::replace(m_target, m_staging, m_backup); }
    void expectUntouched() const
    {
        EXPECT_EQ(m_folder.names(), (QStringList{u"Game"_s, u"Game.new"_s}));
        EXPECT_EQ(m_folder.names(u"Game"_s), QStringList{u"old"_s});
        EXPECT_EQ(m_folder.names(u"Game.new"_s), QStringList{u"new"_s});
    }
    void expectReplaced() const
    {
        EXPECT_EQ(m_folder.names(), (QStringList{u"Game"_s, u"Game.new"_s}));
        EXPECT_EQ(m_folder.names(u"Game"_s), QStringList{u"new"_s});
        EXPECT_EQ(m_folder.names(u"Game.new"_s), QStringList{u"old"_s});
    }

    TestFolder m_folder;
    const QString m_target = m_folder.path(u"Game"_s);
    const QString m_staging = m_folder.path(u"Game.new"_s);
    const QString m_backup = m_folder.path(u"Game.old"_s);
};

TEST_F(FileTreeTest, seesADanglingLink)
{
    EXPECT_FALSE(FileTree::exists(m_target));
    ASSERT_TRUE(QFile::link(u"/nowhere"_s, m_target));
    EXPECT_TRUE(FileTree::exists(m_target));
}

TEST_F(FileTreeTest, removesAFolderWithEverythingInIt)
{
    m_folder.write(u"Game/a/.hidden/größe"_s);
    FileTree::remove(m_target);
    EXPECT_FALSE(FileTree::exists(m_target));
    FileTree::remove(m_target); // Nothing there is success.
}

TEST_F(FileTreeTest, removesALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(u"kept"_s, "content");
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    FileTree::remove(m_target);
    EXPECT_FALSE(FileTree::exists(m_target));
    EXPECT_TRUE(elsewhere.exists(u"kept"_s));
    m_folder.makeFolder(u"Game"_s);
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_folder.path(u"Game/link"_s)));
    FileTree::remove(m_target);
    EXPECT_TRUE(elsewhere.exists(u"kept"_s));
}

TEST_F(FileTreeTest, saysInASentenceWhatCannotBeRemoved)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "Only the administrator can make files that are somebody else's.";
    m_folder.write(u"Game/file"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    const auto status = inAnotherProcess([this] {
        if (::setuid(65534) != 0)
            return 2;
        FileTree::removeBestEffort(m_target);
        try {
            FileTree::remove(m_target);
        } catch (const PlatformError& error) {
            return error.message() == u"Could not remove “%1”: Permission denied."_s.arg(m_target)
                       ? 0
                       : 3;
        }
        return 4;
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(m_folder.exists(u"Game/file"_s));
}

TEST_F(FileTreeTest, replacesAFolderAndLeavesTheOldOneAtTheStagingPlace)
{
    writeBoth();
    replace();
    expectReplaced();
}

TEST_F(FileTreeTest, movesAFolderToWhereNothingIs)
{
    m_folder.write(u"Game.new/new"_s);
    replace();
    EXPECT_EQ(m_folder.names(), QStringList{u"Game"_s});
}

TEST_F(FileTreeTest, replacesALinkAndNotWhatItPointsTo)
{
    const TestFolder elsewhere;
    elsewhere.write(u"kept"_s);
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_target));
    m_folder.write(u"Game.new/new"_s);
    replace();
    EXPECT_FALSE(QFileInfo(m_target).isSymLink());
    EXPECT_TRUE(QFileInfo(m_staging).isSymLink());
    EXPECT_TRUE(elsewhere.exists(u"kept"_s));
}

TEST_F(FileTreeTest, replacesNothingWhenCancelled)
{
    writeBoth();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(FileTree::replace(m_target, m_staging, m_backup, stop.get_token()), Cancelled);
    expectUntouched();
}

TEST_F(FileTreeTest, reportsAReplacementThatFailsAndKeepsTheStagingFolder)
{
    m_folder.write(u"Game.new/new"_s);
    const auto target = m_folder.path(u"no such folder/Game"_s);
    try {
        FileTree::replace(target, m_staging, m_backup);
        FAIL() << "It succeeded.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(), u"Could not move “%1” to “%2”: No such file or directory."_s.arg(
                                       m_staging, target));
    }
    EXPECT_TRUE(m_folder.exists(u"Game.new/new"_s));
}

#if defined(Q_OS_LINUX)
QString sentenceWithoutExchange(const std::function<void()>& action)
{
    return sentenceWithout(SYS_renameat2, EINVAL, action);
}

TEST_F(FileTreeTest, replacesAFolderWhereTheFileSystemCannotExchange)
{
    writeBoth();
    EXPECT_EQ(sentenceWithoutExchange([this] { replace(); }), QString());
    expectReplaced();
}

TEST_F(FileTreeTest, movesAFolderToWhereNothingIsAlsoWhereTheFileSystemCannotExchange)
{
    m_folder.write(u"Game.new/new"_s);
    EXPECT_EQ(sentenceWithoutExchange([this] { replace(); }), QString());
    EXPECT_EQ(m_folder.names(), QStringList{u"Game"_s});
}

TEST_F(FileTreeTest, succeedsThoughTheOldFolderCannotBeMovedToTheStagingPath)
{
    writeBoth();
    const auto backup = m_staging + u"/moves with its parent"_s;
    EXPECT_EQ(sentenceWithoutExchange([&] { FileTree::replace(m_target, m_staging, backup); }),
              QString());
    EXPECT_EQ(m_folder.names(), QStringList{u"Game"_s});
    EXPECT_TRUE(m_folder.exists(u"Game/new"_s));
}

TEST_F(FileTreeTest, putsTheOldFolderBackWhenTheNewOneCannotBeMoved)
{
    writeBoth();
    // No system moves a folder that is named so.
    const auto immovable = m_staging + u"/."_s;
    const auto sentence =
        sentenceWithoutExchange([&] { FileTree::replace(m_target, immovable, m_backup); });
    EXPECT_TRUE(sentence.startsWith(u"Could not move “%1” to “%2”: "_s.arg(immovable, m_target)))
        << sentence;
    expectUntouched();
}

TEST_F(FileTreeTest, writesTheNewFolderToTheDiskBeforeItTouchesTheOldOne)
{
    writeBoth();
    const auto sentence = sentenceWithout(SYS_syncfs, EIO, [this] { replace(); });
    EXPECT_EQ(sentence, u"Could not write “%1” to the disk: Input/output error."_s.arg(m_staging));
    expectUntouched();
}

TEST_F(FileTreeTest, touchesNothingWhenTheExchangeIsRefused)
{
    writeBoth();
    const auto sentence = sentenceWithout(SYS_renameat2, EACCES, [this] { replace(); });
    EXPECT_EQ(sentence,
              u"Could not exchange “%1” and “%2”: Permission denied."_s.arg(m_staging, m_target));
    expectUntouched();
}
#endif

} // namespace
