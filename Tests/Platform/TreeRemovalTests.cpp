// SPDX-License-Identifier: MIT
#include "Platform/TreeRemovalTest.h"

#include "Platform/ExchangePaths.h"
#include "Platform/TreeRemoval.h"
#include "Support/InAnotherProcess.h"
#include "Support/UnchangeableScope.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr auto skipped = 77;

/// The administrator may remove everything, so an ordinary user tries.
bool becomeOrdinaryUser()
{
    return ::getuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
}

TEST_F(TreeRemovalTest, removesAFolderWithEverythingInIt)
{
    m_folder.write(QStringLiteral("Game/a/.hidden/größe"));
    m_folder.write(QStringLiteral("Game/a/b/c"));
    m_folder.makeFolder(QStringLiteral("Game/empty"));
    m_folder.write(QStringLiteral("Other/kept"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_target + QStringLiteral("/pipe")).constData(), 0600), 0);
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Other")});
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Other/kept")));
}

TEST_F(TreeRemovalTest, hasNothingToDoWhereNothingIs)
{
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_FALSE(TreeRemoval::remove(m_target + QStringLiteral("/no/such/folder")));
}

TEST_F(TreeRemovalTest, removesLinksAndNotWhatTheyLeadTo)
{
    m_folder.write(QStringLiteral("Other/kept"));
    const auto other = m_folder.path(QStringLiteral("Other"));
    m_folder.makeFolder(QStringLiteral("Game"));
    ASSERT_TRUE(QFile::link(other, m_target + QStringLiteral("/link")));
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    ASSERT_TRUE(QFile::link(other, m_target));
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Other")});
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Other/kept")));
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
    EXPECT_EQ(inAnotherProcess([this] {
                  if (!becomeOrdinaryUser())
                      return skipped;
                  m_folder.write(QStringLiteral("Game/unreadable/file"));
                  m_folder.write(QStringLiteral("Game/unwritable/deeper/file"));
                  setMode(QStringLiteral("Game/unreadable"), 0);
                  setMode(QStringLiteral("Game/unwritable/deeper"), 0555);
                  setMode(QStringLiteral("Game/unwritable"), 0555);
                  return TreeRemoval::remove(m_target) ? 1 : 0;
              }),
              0);
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, needsNotReadTheFolderThatHoldsWhatIsRemoved)
{
    setMode({}, 0777);
    EXPECT_EQ(inAnotherProcess([this] {
                  if (!becomeOrdinaryUser())
                      return skipped;
                  m_folder.write(QStringLiteral("unreadable/Game/file"));
                  setMode(QStringLiteral("unreadable"), 0300);
                  const auto obstacle =
                      TreeRemoval::remove(m_folder.path(QStringLiteral("unreadable/Game")));
                  setMode(QStringLiteral("unreadable"), 0700);
                  return obstacle ? 1 : 0;
              }),
              0);
    EXPECT_TRUE(m_folder.names(QStringLiteral("unreadable")).isEmpty());
}

TEST_F(TreeRemovalTest, namesTheFirstThingInItsWayAndRemovesTheRest)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "Only the administrator can make files that are somebody else's.";
    setMode({}, 0777);
    m_folder.write(QStringLiteral("Game/locked/file"));
    m_folder.write(QStringLiteral("Game/b/file"));
    m_folder.write(QStringLiteral("Game/file"));
    setMode(QStringLiteral("Game"), 0777);
    setMode(QStringLiteral("Game/b"), 0777);
    EXPECT_EQ(inAnotherProcess([this] {
                  if (!becomeOrdinaryUser())
                      return skipped;
                  const auto obstacle = TreeRemoval::remove(m_target);
                  return obstacle &&
                                 obstacle->path == m_folder.path(QStringLiteral("Game/locked")) &&
                                 obstacle->reason == QStringLiteral("Permission denied")
                             ? 0
                             : 1;
              }),
              0);
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("locked")});

    EXPECT_FALSE(TreeRemoval::remove(m_target)) << "It can be tried again.";
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, passesOverAFolderThatOnlySomebodyElseMayEnter)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "Only the administrator can make folders that are somebody else's.";
    m_folder.write(QStringLiteral("Game/locked/file"));
    m_folder.write(QStringLiteral("Game/a"));
    m_folder.write(QStringLiteral("Game/z/file"));
    m_folder.makeFolder(QStringLiteral("Game/empty"));
    for (const auto* open : {"", "Game", "Game/z"})
        setMode(QString::fromLatin1(open), 0777);
    // Listed, but not entered; and not even listed.
    setMode(QStringLiteral("Game/locked"), 0744);
    setMode(QStringLiteral("Game/empty"), 0700);
    EXPECT_EQ(inAnotherProcess([this] {
                  if (!becomeOrdinaryUser())
                      return skipped;
                  const auto obstacle = TreeRemoval::remove(m_target);
                  const auto locked = m_folder.path(QStringLiteral("Game/locked"));
                  return obstacle && obstacle->path == locked &&
                                 obstacle->reason == QStringLiteral("Permission denied")
                             ? 0
                             : 1;
              }),
              0);
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("locked")});
}

#if defined(Q_OS_LINUX)
TEST_F(TreeRemovalTest, reportsAnUnchangeableFileAndRemovesItWhenThatHasEnded)
{
    const auto file = m_folder.write(QStringLiteral("Game/a/file"));
    m_folder.write(QStringLiteral("Game/b/file"));
    std::optional<TreeRemoval::Obstacle> obstacle;
    {
        const UnchangeableScope unchangeable(file);
        if (!unchangeable.isInForce())
            GTEST_SKIP() << "This user or file system can make no file unchangeable.";
        obstacle = TreeRemoval::remove(m_target);
    }
    ASSERT_TRUE(obstacle);
    EXPECT_EQ(obstacle->path, file);
    EXPECT_EQ(obstacle->reason, QStringLiteral("Operation not permitted"));
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("a")});
    EXPECT_FALSE(TreeRemoval::remove(m_target));
    EXPECT_TRUE(m_folder.names().isEmpty());
}

TEST_F(TreeRemovalTest, staysInsideThoughAFolderTurnsIntoALinkMeanwhile)
{
    m_folder.write(QStringLiteral("Other/folder/kept"));
    const auto link = m_folder.path(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(m_folder.path(QStringLiteral("Other")), link));
    for (int round = 0; round < 25; ++round) {
        for (int i = 0; i < 8; ++i)
            m_folder.write(QStringLiteral("Game/%1/folder/file").arg(i));
        std::jthread exchanging([&](const std::stop_token& stop) {
            while (!stop.stop_requested())
                exchangePaths(m_target + QStringLiteral("/7"), link);
        });
        TreeRemoval::remove(m_target);
        exchanging.request_stop();
        exchanging.join();
        TreeRemoval::remove(m_target);
        if (!QFileInfo(link).isSymLink()) {
            TreeRemoval::remove(link);
            ASSERT_TRUE(QFile::link(m_folder.path(QStringLiteral("Other")), link));
        }
        ASSERT_TRUE(m_folder.exists(QStringLiteral("Other/folder/kept"))) << round;
    }
}
#endif

} // namespace
