// SPDX-License-Identifier: MIT
#include "Platform/MakeDurable.h"

#include "Platform/PlatformError.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include "Support/WithoutSystemCall.h"

#include <sys/syscall.h>
#endif

namespace {

class MakeDurableTest : public testing::Test
{
protected:
    [[nodiscard]] QString failure(const QString& reason) const
    {
        return QStringLiteral("Could not write “%1” to the disk: %2.").arg(m_folder.path(), reason);
    }

    const TestFolder m_folder;
};

TEST_F(MakeDurableTest, writesFoldersWithFilesLinksAndPipes)
{
    m_folder.write(QStringLiteral("a/.hidden/größe"), "content");
    ASSERT_TRUE(QFile::link(QStringLiteral("/nowhere"), m_folder.path(QStringLiteral("link"))));
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_folder.path(QStringLiteral("pipe"))).constData(), 0600),
              0);
    makeDurable(m_folder.path());
    makeEachDurable(m_folder.path());
    makeNamesDurable(m_folder.path());
    EXPECT_EQ(m_folder.read(QStringLiteral("a/.hidden/größe")), "content");
}

TEST_F(MakeDurableTest, reportsAFolderThatIsNotThere)
{
    const auto missing = m_folder.path(QStringLiteral("missing"));
    EXPECT_THROW(makeDurable(missing), PlatformError);
    EXPECT_THROW(makeEachDurable(missing), PlatformError);
    makeNamesDurable(missing);
}

#if defined(Q_OS_LINUX)
TEST_F(MakeDurableTest, reportsWhatTheDiskCouldNotKeep)
{
    EXPECT_EQ(sentenceWithout(SYS_syncfs, ENOSPC, [this] { makeDurable(m_folder.path()); }),
              failure(QStringLiteral("No space left on device")));
    EXPECT_EQ(sentenceWithout(SYS_fsync, EIO, [this] { makeEachDurable(m_folder.path()); }),
              failure(QStringLiteral("Input/output error")));
}

TEST_F(MakeDurableTest, asksNoMoreOfAFileSystemThanItKnows)
{
    m_folder.write(QStringLiteral("file"));
    for (const auto error : {ENOSYS, EINVAL, EOPNOTSUPP}) {
        EXPECT_EQ(sentenceWithout(SYS_syncfs, static_cast<unsigned>(error),
                                  [this] { makeDurable(m_folder.path()); }),
                  QString());
        EXPECT_EQ(sentenceWithout(SYS_fsync, static_cast<unsigned>(error),
                                  [this] { makeEachDurable(m_folder.path()); }),
                  QString());
    }
}

TEST_F(MakeDurableTest, reportsAFileThatCannotBeWrittenToTheDisk)
{
    m_folder.write(QStringLiteral("readable"));
    const auto file = QFile::encodeName(m_folder.write(QStringLiteral("a/unreadable")));
    ASSERT_EQ(::chmod(file.constData(), 0), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    const auto sentence = sentenceWithout(SYS_syncfs, ENOSYS, [this] {
        if (::getuid() == 0 && ::setuid(65534) != 0)
            ::_exit(3); // The administrator could open the file.
        makeEachDurable(m_folder.path());
    });
    EXPECT_EQ(sentence, failure(QStringLiteral("Permission denied")));
}
#endif

} // namespace
