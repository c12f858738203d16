// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

#include "Install/Zip/ZipArchive.h"

#include <QtEndian>

#include <unistd.h>

namespace {

using ZipRefusalTest = ZipExtractorTest;

#if !defined(__SANITIZE_ADDRESS__)
/// The memory that this process has in use.
qint64 residentKib()
{
    QFile status(u"/proc/self/statm"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    return status.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE) / 1024;
}
#endif

const auto outside = u"would lie outside the folder"_s;
const auto twice = u"occurs twice"_s;
const auto belowFile = u"would lie below a file or a link"_s;

} // namespace

TEST_F(ZipRefusalTest, refusesAnArchiveWithoutEntries)
{
    expectRefusal(ZipWriter(), u"The archive is empty."_s);
}

TEST_F(ZipRefusalTest, refusesNamesThatLeaveTheFolder)
{
    for (const auto* const name : {"../x", "a/../../x", "a/..", "..", "/etc/x", "//x", "a/../b"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), outside));
}

TEST_F(ZipRefusalTest, refusesNamesThatAreNone)
{
    expectRefusal({.name = "."}, refusal(u"."_s, u"has no name"_s));
    expectRefusal({.name = ""}, refusal({}, u"has no name"_s));
}

TEST_F(ZipRefusalTest, takesANullByteInANameForABlank)
{
    ZipWriter zip;
    zip.addFile(QByteArray("a\0/../x", 7)).addFile(QByteArray("..\0/x", 5));
    EXPECT_EQ(extract(zip), 1);

    ZipWriter harmless;
    harmless.addFile(QByteArray("..\0/x", 5));
    EXPECT_EQ(extract(harmless), 0);
    EXPECT_TRUE(folder.exists(unpacked(u".. /x"_s)));
}

TEST_F(ZipRefusalTest, refusesNamesTooLongOrTooDeep)
{
    const auto reason = u"has too long a name"_s;
    const auto shown = QString(200, u'n') + u'…';
    expectRefusal({.name = QByteArray(256, 'n')}, refusal(shown, reason));

    ZipWriter deep;
    deep.addFile(QByteArray("d/").repeated(200) + "x");
    EXPECT_EQ(extract(deep), 1);
    EXPECT_TRUE(log.value(0).contains(reason));

    ZipWriter fits;
    fits.addFile(QByteArray(255, 'n'));
    EXPECT_EQ(extract(fits), 0);
}

#if !defined(__SANITIZE_ADDRESS__) // Its allocator keeps what is freed.
TEST_F(ZipRefusalTest, keepsNoMemoryOfARefusedArchive)
{
    ZipWriter zip;
    for (int i = 0; i < 60'000; ++i)
        zip.addFile("a folder with a long name/" + QByteArray::number(i));
    const auto archive = zip.addFile("../evil").archive();
    const auto before = residentKib();

    EXPECT_EQ(extract(archive), 1);

    EXPECT_LT(residentKib() - before, 16 * 1024);
}
#endif

TEST_F(ZipRefusalTest, refusesTooManyEntriesBeforeItReadsThem)
{
    const auto tooMany = u"The archive has too many files and folders."_s;
    for (const auto count : {ZipArchive::maxEntries, ZipArchive::maxEntries + 1}) {
        const auto littleEndian = qToLittleEndian(count);
        const QByteArray number(reinterpret_cast<const char*>(&littleEndian), sizeof littleEndian);
        const auto largeRecord =
            "PK\6\6" + QByteArray(20, '\0') + number + number + QByteArray(16, '\0');
        const auto locator = "PK\6\7" + QByteArray(16, '\0');
        const auto record = "PK\5\6" + QByteArray(4, '\0') + QByteArray(14, '\xff');
        EXPECT_EQ(extract(largeRecord + locator + record), 1);
        EXPECT_EQ(log.last() == tooMany, count > ZipArchive::maxEntries) << log.last();
    }
}

TEST_F(ZipRefusalTest, refusesNamesThatImplyTooManyFolders)
{
    // A name of 256 bytes implies 127 folders, so that 4,000 small entries make 508,000.
    ZipWriter zip;
    for (int i = 0; i < 4'000; ++i)
        zip.addFile(QByteArray::number(i) + QByteArray("/d").repeated(126) + "/f");

    expectRefusal(zip, u"The archive has too many files and folders."_s);
}

TEST_F(ZipRefusalTest, refusesNamesThatImplyFoldersWithTooLongNames)
{
    // As each folder is remembered by its path, a name of 2 KB takes 130 KB.
    ZipWriter zip;
    for (int i = 0; i < 2'200; ++i)
        zip.addFile(QByteArray::number(10'000 + i) + "/a-folder-of-16/" +
                    QByteArray("a-folder-of-16b/").repeated(125) + "f");

    expectRefusal(zip, u"The archive has too many files and folders."_s);
}

TEST_F(ZipRefusalTest, refusesEntriesBelowALinkOrAFile)
{
    ZipWriter throughLink;
    throughLink.addLink("l", "a").addFile("l/x");
    expectRefusal(throughLink, refusal(u"l/x"_s, belowFile));

    ZipWriter linkLast;
    linkLast.addFile("l/x").addLink("l", "a");
    expectRefusal(linkLast, refusal(u"l"_s, twice));

    expectRefusal({.name = "honest/x"}, refusal(u"honest/x"_s, belowFile));
    EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty());
}

TEST_F(ZipRefusalTest, refusesNamesThatOccurTwice)
{
    expectRefusal({.name = "honest"}, u"The archive cannot be read: it names an entry twice."_s);
    for (const auto* const name : {"./honest", ".//honest"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), twice));
    expectRefusal({.name = "honest/", .mode = S_IFDIR | 0755}, refusal(u"honest/"_s, twice));
}

TEST_F(ZipRefusalTest, acceptsAFolderNamedAfterItsFiles)
{
    ZipWriter zip;
    zip.addFile("a/b/c")
        .add({.name = "a/", .mode = S_IFDIR | 0755})
        .add({.name = "./", .mode = S_IFDIR | 0755});

    EXPECT_EQ(extract(zip), 0);
}

TEST_F(ZipRefusalTest, refusesEncryptedEntries)
{
    constexpr int encryptionHeader = 12;
    expectRefusal(
        {.name = "secret", .data = QByteArray(encryptionHeader + 8, 'x'), .flags = 1, .size = 8},
        refusal(u"secret"_s, u"is encrypted"_s));
}

TEST_F(ZipRefusalTest, refusesMethodsBesideStoredAndDeflated)
{
    for (const quint16 method : std::initializer_list<quint16>{1, 9, 12, 14, 93, 95}) {
        expectRefusal({.name = "packed", .data = QByteArray(20, 'x'), .method = method},
                      refusal(u"packed"_s, u"is compressed in a way that is not supported"_s));
    }
}

TEST_F(ZipRefusalTest, refusesHeadersThatNameAnEntryDifferently)
{
    expectRefusal({.name = "one", .localName = "another"},
                  u"The archive cannot be read: its headers contradict each other."_s);
}

TEST_F(ZipRefusalTest, refusesEntriesThatShareTheirContent)
{
    // The content of the first entry holds the whole second one.
    const ZipWriter::Entry inner{.name = "inner", .data = QByteArray(10'000, 'x')};
    ZipWriter quoted;
    quoted.add(inner);
    ZipWriter zip;
    zip.addFile("outer", quoted.localPart());
    auto second = inner;
    second.offset = zip.localPart().size() - quoted.localPart().size();
    zip.add(second);

    expectRefusal(zip, u"The archive's entries overlap."_s);
}

TEST_F(ZipRefusalTest, refusesDevicesPipesAndSockets)
{
    for (const auto kind : {S_IFCHR, S_IFBLK, S_IFIFO, S_IFSOCK}) {
        expectRefusal({.name = "special", .mode = static_cast<quint32>(kind) | 0644},
                      refusal(u"special"_s, u"is neither a file nor a folder nor a link"_s));
    }
}

TEST_F(ZipRefusalTest, refusesProgramsThatRunAsAnotherUser)
{
    for (const auto mode : {04755U, 02755U}) {
        expectRefusal({.name = "program", .mode = S_IFREG | mode},
                      refusal(u"program"_s, u"would run with another user's rights"_s));
    }
}

TEST_F(ZipRefusalTest, refusesWhatDoesNotFitOnTheDisk)
{
    ZipWriter zip;
    for (int i = 0; i < 30'000; ++i)
        zip.add({.name = QByteArray::number(i), .method = 8, .size = 0xfffffff0});

    EXPECT_EQ(extract(zip), 1);

    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log.first().startsWith(u"The archive unpacks to 128.85 TB, which "_s))
        << log.first();
    EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty());
}

TEST_F(ZipRefusalTest, showsAHostileNameOnOneLine)
{
    ZipWriter zip;
    zip.addFile("../a\nb\x1b[2J");

    EXPECT_EQ(extract(zip), 1);

    ASSERT_EQ(log.size(), 1);
    EXPECT_FALSE(log.first().contains(u'\n'));
    EXPECT_FALSE(log.first().contains(QChar(0x1b)));
}

TEST_F(ZipRefusalTest, neverWritesThroughALinkThatWasThereBefore)
{
    folder.write(u"elsewhere"_s, "untouched");
    folder.makeFolder(u"un packed"_s);
    ASSERT_TRUE(QFile::link(folder.path(u"elsewhere"_s), folder.path(unpacked(u"a"_s))));

    EXPECT_EQ(extract(ZipWriter().addFile("a", "new")), 1);
    EXPECT_EQ(folder.read(u"elsewhere"_s), "untouched");
}
