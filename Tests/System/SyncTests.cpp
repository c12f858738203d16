// SPDX-License-Identifier: MIT
#include "System/Sync.h"

#include "Support/TestFolder.h"
#include "System/Errors.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include "Support/WithoutSystemCall.h"

#include <sys/syscall.h>
#endif

using namespace Qt::StringLiterals;

namespace {

class SyncTest : public testing::Test
{
protected:
    [[nodiscard]] QString failure(const QString& reason) const
    {
        return u"Could not write “%1” to the disk: %2."_s.arg(m_folder.path(), reason);
    }

    const TestFolder m_folder;
};

TEST_F(SyncTest, writesFoldersWithFilesLinksAndPipes)
{
    m_folder.write(u"a/.hidden/größe"_s, "content");
    ASSERT_TRUE(QFile::link(u"/nowhere"_s, m_folder.path(u"link"_s)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_folder.path(u"pipe"_s)).constData(), 0600), 0);
    syncTree(m_folder.path());
    syncFiles(m_folder.path());
    syncDirectory(m_folder.path());
    EXPECT_EQ(m_folder.read(u"a/.hidden/größe"_s), "content");
}

TEST_F(SyncTest, reportsAFolderThatIsNotThere)
{
    const auto missing = m_folder.path(u"missing"_s);
    EXPECT_THROW(syncTree(missing), PlatformError);
    EXPECT_THROW(syncFiles(missing), PlatformError);
    syncDirectory(missing);
}

#if defined(Q_OS_LINUX)
TEST_F(SyncTest, reportsWhatTheDiskCouldNotKeep)
{
    EXPECT_EQ(sentenceWithout(SYS_syncfs, EIO, [this] { syncTree(m_folder.path()); }),
              failure(u"Input/output error"_s));
    EXPECT_EQ(sentenceWithout(SYS_fsync, EIO, [this] { syncFiles(m_folder.path()); }),
              failure(u"Input/output error"_s));
}

TEST_F(SyncTest, asksNoMoreOfAFileSystemThanItKnows)
{
    m_folder.write(u"file"_s);
    for (const auto error : {ENOSYS, EINVAL, EOPNOTSUPP}) {
        EXPECT_EQ(sentenceWithout(SYS_syncfs, static_cast<unsigned>(error),
                                  [this] { syncTree(m_folder.path()); }),
                  QString());
        EXPECT_EQ(sentenceWithout(SYS_fsync, static_cast<unsigned>(error),
                                  [this] { syncFiles(m_folder.path()); }),
                  QString());
    }
}

TEST_F(SyncTest, reportsAFileThatCannotBeWrittenToTheDisk)
{
    m_folder.write(u"readable"_s);
    const auto file = QFile::encodeName(m_folder.write(u"a/unreadable"_s));
    ASSERT_EQ(::chmod(file.constData(), 0), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    const auto sentence = sentenceWithout(SYS_syncfs, ENOSYS, [this] {
        if (::getuid() == 0 && ::setuid(65534) != 0)
            ::_exit(3); // The administrator could open the file.
        syncFiles(m_folder.path());
    });
    EXPECT_EQ(sentence, failure(u"Permission denied"_s));
}
#endif

} // namespace
