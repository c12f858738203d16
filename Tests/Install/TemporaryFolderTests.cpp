// SPDX-License-Identifier: MIT
#include "Install/TemporaryFolder.h"

#include "Support/TestFolder.h"
#include "System/Errors.h"
#include "System/FileDescriptor.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <optional>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace {

class TemporaryFolderTest : public testing::Test
{
protected:
    /// Whether another process could clear the folder as an abandoned one.
    [[nodiscard]] bool isFree() const
    {
        const FileDescriptor folder(
            ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        return ::flock(folder.get(), LOCK_EX | LOCK_NB) == 0;
    }

    const TestFolder m_parent;
    const QString m_path = m_parent.path(u"new parent/größe"_s);
};

TEST_F(TemporaryFolderTest, existsWithItsParentsForTheUserAlone)
{
    const TemporaryFolder folder(m_path);
    EXPECT_EQ(folder.path(), m_path);
    EXPECT_TRUE(QFileInfo(m_path).isDir());
    EXPECT_EQ(QFile::permissions(m_path) &
                  (QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                   QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther),
              QFileDevice::Permissions());
}

TEST_F(TemporaryFolderTest, isRemovedWithEverythingInItWhenItsOwnerGoes)
{
    {
        const TemporaryFolder folder(m_path);
        m_parent.write(u"new parent/größe/a/b"_s);
    }
    EXPECT_FALSE(QFileInfo::exists(m_path));
    EXPECT_TRUE(QFileInfo::exists(QFileInfo(m_path).path()));
}

TEST_F(TemporaryFolderTest, canBeRemovedEarly)
{
    TemporaryFolder folder(m_path);
    folder.remove();
    EXPECT_FALSE(QFileInfo::exists(m_path));
    m_parent.makeFolder(u"new parent/größe"_s);
    folder.remove(); // It owns nothing any more.
    EXPECT_TRUE(QFileInfo::exists(m_path));
}

TEST_F(TemporaryFolderTest, changesItsOwnerWithoutBeingRemoved)
{
    std::optional<TemporaryFolder> first(std::in_place, m_path);
    {
        const TemporaryFolder second(std::move(*first));
        first.reset();
        EXPECT_TRUE(QFileInfo::exists(m_path));
        EXPECT_EQ(second.path(), m_path);
        EXPECT_FALSE(isFree());
    }
    EXPECT_FALSE(QFileInfo::exists(m_path));
}

TEST_F(TemporaryFolderTest, isLockedWhileItIsOwned)
{
    const TemporaryFolder folder(m_path);
    EXPECT_FALSE(isFree());
}

TEST_F(TemporaryFolderTest, isNotMadeWhereSomethingIsAlready)
{
    const TemporaryFolder folder(m_path);
    try {
        const TemporaryFolder again(m_path);
        FAIL() << "It was made.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  u"Could not create the temporary folder “%1”: File exists."_s.arg(m_path));
    }
    EXPECT_TRUE(QFileInfo::exists(m_path));
}

TEST_F(TemporaryFolderTest, staysWhenItWasMadeAgainUnderTheEyesOfSeveralCleaners)
{
    // One of them may remove a folder that is not locked yet, while another already has it open.
    const auto clean = [this](const std::stop_token& stop) {
        while (!stop.stop_requested())
            TemporaryFolder::removeIfAbandoned(m_path);
    };
    const std::array cleaners{std::jthread(clean), std::jthread(clean)};
    for (int i = 0; i < 200; ++i) {
        const TemporaryFolder folder(m_path);
        std::this_thread::yield();
        ASSERT_TRUE(QFileInfo::exists(m_path)) << i;
    }
}

} // namespace
