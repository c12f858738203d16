// SPDX-License-Identifier: MIT
#include "System/TreeRemovalTest.h"

#include "Support/InAnotherProcess.h"
#include "Support/OwnMounts.h"
#include "System/TreeRemoval.h"

#include <functional>

#include <sys/mount.h>

namespace {

bool mountOver(const QString& place, const QString& what)
{
    return ::mount(QFile::encodeName(what).constData(), QFile::encodeName(place).constData(),
                   nullptr, MS_BIND, nullptr) == 0;
}

/// Mounts over `place` with `mount`, tries the removal of `target`, and once more when nothing is
/// mounted any more. Returns 0 when the first attempt named the place and the second succeeded.
template<typename Mount, typename Check>
int removeAroundMount(const QString& target, const QString& place, Mount mount, Check isUntouched)
{
    if (!separateMounts() || !mount())
        return noOwnMounts;
    const auto failure = TreeRemoval::remove(target);
    if (!failure || failure->path != place ||
        failure->reason != u"another file system is mounted there"_s)
        return 1;
    if (!isUntouched())
        return 2;
    if (::umount(QFile::encodeName(place).constData()) != 0)
        return 3;
    return TreeRemoval::remove(target) ? 4 : 0;
}

class TreeRemovalOfMountsTest : public TreeRemovalTest
{
protected:
    void expectObstacle(const QString& place, const std::function<bool()>& mount,
                        const QString& kept)
    {
        m_folder.write(u"Game/b/file"_s);
        const auto status = inAnotherProcess([&] {
            return removeAroundMount(m_target, place, mount, [&] {
                return m_folder.exists(kept) &&
                       (place == m_target || !m_folder.exists(u"Game/b"_s));
            });
        });
        if (status == noOwnMounts)
            GTEST_SKIP() << "This system allows no mount here.";
        EXPECT_EQ(status, 0);
        EXPECT_FALSE(m_folder.exists(u"Game"_s));
    }

    /// A folder of the same file system, mounted a second time.
    void expectObstacleOfFolder(const QString& place, const QString& kept)
    {
        m_folder.write(u"Other/folder/kept"_s);
        const auto other = m_folder.path(u"Other"_s);
        expectObstacle(place, [&] { return mountOver(place, other); }, kept);
        EXPECT_TRUE(m_folder.exists(u"Other/folder/kept"_s));
    }
};

TEST_F(TreeRemovalOfMountsTest, leavesAFolderThatIsMountedBelowAlone)
{
    m_folder.write(u"Game/a/mounted/hidden by the mount"_s);
    expectObstacleOfFolder(m_folder.path(u"Game/a/mounted"_s), u"Game/a/mounted/folder/kept"_s);
}

TEST_F(TreeRemovalOfMountsTest, leavesAFolderAloneThatIsItselfAMount)
{
    m_folder.write(u"Game/hidden by the mount"_s);
    expectObstacleOfFolder(m_target, u"Game/folder/kept"_s);
}

TEST_F(TreeRemovalOfMountsTest, leavesAnotherFileSystemAlone)
{
    const auto place = m_folder.makeFolder(u"Game/a"_s);
    expectObstacle(
        place,
        [&] {
            if (::mount("none", QFile::encodeName(place).constData(), "tmpfs", 0, nullptr) != 0)
                return false;
            m_folder.write(u"Game/a/kept"_s);
            setMode(u"Game/a"_s, 0555);
            return true;
        },
        u"Game/a/kept"_s);
}

TEST_F(TreeRemovalOfMountsTest, leavesAFileThatIsMountedAlone)
{
    const auto place = m_folder.write(u"Game/a/file"_s);
    const auto other = m_folder.write(u"kept"_s);
    expectObstacle(place, [&] { return mountOver(place, other); }, u"Game/a/file"_s);
    EXPECT_TRUE(m_folder.exists(u"kept"_s));
}

} // namespace
