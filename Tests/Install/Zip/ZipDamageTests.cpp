// SPDX-License-Identifier: MIT
#include "Support/FileSizeLimit.h"
#include "ZipExtractorTest.h"

#include <QFileInfo>

#if defined(Q_OS_LINUX)
#include "Support/WithoutSystemCall.h"
#include "System/Errors.h"

#include <sys/syscall.h>
#endif

using ZipDamageTest = ZipExtractorTest;

TEST_F(ZipDamageTest, refusesWhatIsNoArchive)
{
    for (const auto& bytes : {QByteArray(), QByteArray("PK"), QByteArray(100'000, 'x'),
                              QByteArray("<html>Not found</html>")}) {
        EXPECT_EQ(extract(bytes), 1);
        EXPECT_EQ(log.size(), 1);
        EXPECT_TRUE(log.value(0).startsWith(u"The archive cannot be read: "_s));
    }
}

#if defined(Q_OS_LINUX)
TEST_F(ZipDamageTest, tellsAFileThatCannotBeReadFromADamagedArchive)
{
    const auto archive = ZipWriter().addFile("first", "some bytes").archive();
    for (const auto reading : {unsigned{SYS_pread64}, unsigned{SYS_read}}) {
        const auto sentence = sentenceWithout(reading, EIO, [&] {
            extract(archive);
            throw PlatformError(log.value(0));
        });
        EXPECT_EQ(sentence, u"Could not read “%1”: Input/output error."_s.arg(
                                folder.path(u"the archive.zip"_s)));
    }
}
#endif

TEST_F(ZipDamageTest, refusesATruncatedArchiveAtEveryLength)
{
    ZipWriter zip;
    zip.addFile("first", "some bytes").addLink("second", "first");
    const auto whole = zip.archive();

    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(extract(whole.first(size)), 1) << size;
        EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty()) << size;
    }
    EXPECT_EQ(extract(whole), 0);
}

TEST_F(ZipDamageTest, refusesAnArchiveWithoutItsDirectory)
{
    const auto whole = ZipWriter().addFile("first", "some bytes").archive();

    EXPECT_EQ(extract(whole.first(whole.indexOf("PK\1\2")) + QByteArray(50'000, '\0')), 1);
}

TEST_F(ZipDamageTest, failsOnABadChecksum)
{
    for (const auto deflated : {false, true}) {
        ZipWriter zip;
        zip.add({.name = "a", .data = "some bytes", .deflated = deflated, .checksum = 1234});

        EXPECT_EQ(extract(zip), 1);
        EXPECT_EQ(log.size(), 1);
        QFile::remove(folder.path(unpacked(u"a"_s)));
    }
}

TEST_F(ZipDamageTest, refusesABadChecksumOfAnEmptyFile)
{
    expectRefusal({.name = "a", .checksum = 1234}, u"The archive entry “a” is damaged."_s);
}

TEST_F(ZipDamageTest, failsOnABadChecksumOfALink)
{
    ZipWriter zip;
    zip.addFile("a").add({.name = "l", .data = "a", .mode = S_IFLNK | 0777, .checksum = 1234});

    expectRefusal(zip, u"The archive entry “l” is damaged."_s);
}

TEST_F(ZipDamageTest, failsWhenTheAnnouncedSizeIsNotTheTrueOne)
{
    for (const quint32 size : {5U, 50U}) {
        ZipWriter zip;
        zip.add({.name = "a",
                 .data = QByteArray("some bytes").repeated(3),
                 .deflated = true,
                 .size = size});

        EXPECT_EQ(extract(zip), 1);
        EXPECT_LE(QFileInfo(folder.path(unpacked(u"a"_s))).size(), 30);
        QFile::remove(folder.path(unpacked(u"a"_s)));
    }
}

TEST_F(ZipDamageTest, failsOnDamagedData)
{
    auto bytes = ZipWriter()
                     .add({.name = "a", .data = QByteArray(5'000, 'x') + "yz", .deflated = true})
                     .archive();
    bytes[40] = static_cast<char>(~bytes[40]);

    EXPECT_EQ(extract(bytes), 1);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ZipDamageTest, failsWhenAFileCannotBeWritten)
{
    const auto archive = ZipWriter()
                             .add({.name = "a", .data = QByteArray(999'999, 'x'), .deflated = true})
                             .archive();
    const FileSizeLimit sizeLimit(100'000);

    EXPECT_EQ(extract(archive), 1);
    EXPECT_EQ(log, QStringList{u"Could not write “a”: File too large."_s});
}

TEST_F(ZipDamageTest, writesNoMoreThanTheAnnouncedSize)
{
    ZipWriter zip;
    zip.add({.name = "a", .data = QByteArray(9'999'999, 'x'), .deflated = true, .size = 10});
    const auto archive = zip.archive();
    const FileSizeLimit sizeLimit(5'000'000);

    EXPECT_EQ(extract(archive), 1);
    EXPECT_EQ(log, QStringList{u"The archive entry “a” does not have its announced size."_s});
}
