// SPDX-License-Identifier: MIT
#include "System/TreeRemovalTest.h"

#include "Support/InAnotherProcess.h"
#include "Support/UnchangeableScope.h"
#include "System/TreeRemoval.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The administrator may remove everything, so an ordinary user does `work` in a copy of the test.
void asOrdinaryUser(const std::function<bool()>& work)
{
    EXPECT_EQ(inAnotherProcess([&work] {
                  if (::getuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
                      return 2;
                  return work() ? 0 : 1;
              }),
              0);
}

class LockedFolderTest : public TreeRemovalTest
{
protected:
    void SetUp() override
    {
        if (::getuid() != 0)
            GTEST_SKIP() << "Only the administrator can make files of another user.";
        m_folder.write(u"Game/locked/file"_s);
    }
    /// An ordinary user can remove all but the folder "locked", which is not his.
    void expectOnlyLockedIsLeft() const
    {
        asOrdinaryUser([this] {
            const auto failure = TreeRemoval::remove(m_target);
            return failure && failure->path == m_folder.path(u"Game/locked"_s) &&
                   failure->reason == u"Permission denied"_s;
        });
        EXPECT_EQ(m_folder.names(u"Game"_s), QStringList{u"locked"_s});
    }
};

TEST_F(TreeRemovalTest, removesAFolderWithEverythingInIt)
{
    m_folder.write(u"Game/a/.hidden/größe"_s);
    m_folder.write(u"Game/a/b/c"_s);
    m_folder.makeFolder(u"Game/empty"_s);
    m_folder.write(u"Other/kept"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_target + u"/pipe"_s).constData(), 0600), 0);
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_EQ(m_folder.names(), QStringList{u"Other"_s});
    EXPECT_TRUE(m_folder.exists(u"Other/kept"_s));
}

TEST_F(TreeRemovalTest, hasNothingToDoWhereNothingIs)
{
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_FALSE(TreeRemoval::remove(m_target + u"/no/such/folder"_s));
}

TEST_F(TreeRemovalTest, removesLinksAndNotWhatTheyLeadTo)
{
    m_folder.write(u"Other/kept"_s);
    const auto other = m_folder.path(u"Other"_s);
    m_folder.makeFolder(u"Game"_s);
    ASSERT_TRUE(QFile::link(other, m_target + u"/link"_s));
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    ASSERT_TRUE(QFile::link(other, m_target));
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_EQ(m_folder.names(), QStringList{u"Other"_s});
    EXPECT_TRUE(m_folder.exists(u"Other/kept"_s));
}

TEST_F(TreeRemovalTest, removesATreeDeeperThanAnyPathMayBeLong)
{
    constexpr auto depth = 1100; // Folders also more than may be open at a time.
    const std::string name(4, 'x');
    ASSERT_EQ(inAnotherProcess([&] {
                  const auto top = QFile::encodeName(m_target);
                  if (::mkdir(top.constData(), 0755) != 0 || ::chdir(top.constData()) != 0)
                      return 1;
                  for (int i = 0; i < depth; ++i) {
                      if (::mkdir(name.c_str(), 0755) != 0 || ::chdir(name.c_str()) != 0)
                          return 2;
                  }
                  return 0;
              }),
              0);
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, unlocksTheUsersOwnFolders)
{
    setMode({}, 0777);
    asOrdinaryUser([this] {
        m_folder.write(u"Game/unreadable/file"_s);
        m_folder.write(u"Game/unwritable/deeper/file"_s);
        setMode(u"Game/unreadable"_s, 0);
        setMode(u"Game/unwritable/deeper"_s, 0555);
        setMode(u"Game/unwritable"_s, 0555);
        return !TreeRemoval::remove(m_target);
    });
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, needsNotReadTheFolderThatHoldsWhatIsRemoved)
{
    setMode({}, 0777);
    asOrdinaryUser([this] {
        m_folder.write(u"unreadable/Game/file"_s);
        setMode(u"unreadable"_s, 0300);
        const auto failure = TreeRemoval::remove(m_folder.path(u"unreadable/Game"_s));
        setMode(u"unreadable"_s, 0700);
        return !failure;
    });
    EXPECT_TRUE(m_folder.names(u"unreadable"_s).isEmpty());
}

TEST_F(LockedFolderTest, isNamedAndTheRestRemoved)
{
    setMode({}, 0777);
    m_folder.write(u"Game/b/file"_s);
    m_folder.write(u"Game/file"_s);
    setMode(u"Game"_s, 0777);
    setMode(u"Game/b"_s, 0777);
    expectOnlyLockedIsLeft();

    EXPECT_FALSE(TreeRemoval::remove(m_target)) << "It can be tried again.";
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(LockedFolderTest, isPassedOverWhenOnlyAnotherUserMayEnter)
{
    m_folder.write(u"Game/a"_s);
    m_folder.write(u"Game/z/file"_s);
    m_folder.makeFolder(u"Game/empty"_s);
    for (const auto* open : {"", "Game", "Game/z"})
        setMode(QString::fromLatin1(open), 0777);
    // Listed, but not entered; and not even listed.
    setMode(u"Game/locked"_s, 0744);
    setMode(u"Game/empty"_s, 0700);
    expectOnlyLockedIsLeft();
}

#if defined(Q_OS_LINUX)
TEST_F(TreeRemovalTest, reportsAnUnchangeableFileAndRemovesItWhenThatHasEnded)
{
    const auto file = m_folder.write(u"Game/a/file"_s);
    m_folder.write(u"Game/b/file"_s);
    std::optional<TreeRemoval::Failure> failure;
    {
        const UnchangeableScope unchangeable(file);
        if (!unchangeable.isInForce())
            GTEST_SKIP() << "This user or file system can make no file unchangeable.";
        failure = TreeRemoval::remove(m_target);
    }
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->path, file);
    EXPECT_EQ(failure->reason, u"Operation not permitted"_s);
    EXPECT_EQ(m_folder.names(u"Game"_s), QStringList{u"a"_s});
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, staysInsideThoughAFolderTurnsIntoALinkMeanwhile)
{
    m_folder.write(u"Other/folder/kept"_s);
    const auto link = m_folder.path(u"link"_s);
    ASSERT_TRUE(QFile::link(m_folder.path(u"Other"_s), link));
    const auto folderName = QFile::encodeName(m_target + u"/7"_s);
    const auto linkName = QFile::encodeName(link);
    for (int round = 0; round < 25; ++round) {
        for (int i = 0; i < 8; ++i)
            m_folder.write(u"Game/%1/folder/file"_s.arg(i));
        std::jthread exchanging([&](const std::stop_token& stop) {
            while (!stop.stop_requested())
                ::renameat2(AT_FDCWD, folderName.constData(), AT_FDCWD, linkName.constData(),
                            RENAME_EXCHANGE);
        });
        TreeRemoval::remove(m_target);
        exchanging.request_stop();
        exchanging.join();
        TreeRemoval::remove(m_target);
        if (!QFileInfo(link).isSymLink()) {
            TreeRemoval::remove(link);
            ASSERT_TRUE(QFile::link(m_folder.path(u"Other"_s), link));
        }
        ASSERT_TRUE(m_folder.exists(u"Other/folder/kept"_s)) << round;
    }
}
#endif

} // namespace
