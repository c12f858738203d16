// SPDX-License-Identifier: MIT
#include "Platform/TreeRemoval.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <functional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <sched.h>
#include <sys/mount.h>
#endif

namespace {

constexpr auto skipped = 77;

/// Does `work` in a process of its own and gives the status that this returns.
int inAnotherProcess(const std::function<int()>& work)
{
    const auto child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The administrator may remove everything, so an ordinary user tries.
bool becomeOrdinaryUser()
{
    return ::getuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
}

class TreeRemovalTest : public testing::Test
{
protected:
    ~TreeRemovalTest() override { setMode(QStringLiteral("Game/locked"), 0755); }

    void setMode(const QString& relative, mode_t mode) const
    {
        ::chmod(QFile::encodeName(m_folder.path(relative)).constData(), mode);
    }

    const TestFolder m_folder;
    const QString m_target = m_folder.path(QStringLiteral("Game"));
};

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
    constexpr auto depth = 3000;
    const std::string name(20, 'x');
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
                                 obstacle->path == m_folder.path(QStringLiteral("Game/locked/file")) &&
                                 obstacle->reason == QStringLiteral("Permission denied")
                             ? 0
                             : 1;
              }),
              0);
    EXPECT_EQ(m_folder.names(QStringLiteral("Game")), QStringList{QStringLiteral("locked")});

    EXPECT_FALSE(TreeRemoval::remove(m_target)) << "It can be tried again.";
    EXPECT_TRUE(m_folder.names().isEmpty());
}

#if defined(Q_OS_LINUX)
/// Gives this process mounts of its own, which nobody else sees.
bool separateMounts()
{
    const auto flags = ::getuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    return ::unshare(flags) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountOver(const QString& place, const QString& what)
{
    return ::mount(QFile::encodeName(what).constData(), QFile::encodeName(place).constData(),
                   nullptr, MS_BIND, nullptr) == 0;
}

TEST_F(TreeRemovalTest, leavesWhatIsMountedBelowAlone)
{
    m_folder.write(QStringLiteral("Game/a/mounted/hidden by the mount"));
    m_folder.write(QStringLiteral("Game/file"));
    m_folder.write(QStringLiteral("Other/folder/kept"));
    const auto status = inAnotherProcess([this] {
        const auto place = m_folder.path(QStringLiteral("Game/a/mounted"));
        if (!separateMounts() || !mountOver(place, m_folder.path(QStringLiteral("Other"))))
            return skipped;
        const auto obstacle = TreeRemoval::remove(m_target);
        if (!obstacle || obstacle->path != place ||
            obstacle->reason != QStringLiteral("another file system is mounted there"))
            return 1;
        if (!m_folder.exists(QStringLiteral("Game/a/mounted/folder/kept")))
            return 2;
        if (m_folder.exists(QStringLiteral("Game/file")))
            return 3;
        if (::umount(QFile::encodeName(place).constData()) != 0)
            return 4;
        return TreeRemoval::remove(m_target) ? 5 : 0;
    });
    if (status == skipped)
        GTEST_SKIP() << "This system lets nobody here mount anything.";
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(m_folder.exists(QStringLiteral("Other/folder/kept")));
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("Other")});
}
#endif

} // namespace
