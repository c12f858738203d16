// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

namespace {

using ZipRefusalTest = ZipExtractorTest;

QString refusal(const QString& name, const QString& reason)
{
    return QStringLiteral("The archive entry “%1” %2.").arg(name, reason);
}

ZipWriter::Entry linkEntry(const QByteArray& name, const QByteArray& target)
{
    return {.name = name, .data = target, .mode = S_IFLNK | 0777};
}

const auto outside = QStringLiteral("would lie outside the folder");
const auto leadsOutside = QStringLiteral("leads outside the folder");
const auto twice = QStringLiteral("occurs twice");
const auto belowFile = QStringLiteral("would lie below a file or a link");

} // namespace

TEST_F(ZipRefusalTest, refusesAnArchiveWithoutEntries)
{
    EXPECT_EQ(extract(ZipWriter()), 1);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ZipRefusalTest, refusesNamesThatLeaveTheFolder)
{
    for (const auto* const name : {"../x", "a/../../x", "a/..", "..", "/etc/x", "//x", "a/../b"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), outside));
}

TEST_F(ZipRefusalTest, refusesNamesThatAreNone)
{
    expectRefusal({.name = "."}, refusal(QStringLiteral("."), QStringLiteral("has no name")));
    expectRefusal({.name = ""}, refusal({}, QStringLiteral("has no name")));
    expectRefusal({.name = QByteArray("a\0/x", 4)},
                  refusal(QStringLiteral("a\uFFFD/x"), QStringLiteral("has no name")));
}

TEST_F(ZipRefusalTest, refusesNamesTooLongOrTooDeep)
{
    const auto reason = QStringLiteral("has too long a name");
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

TEST_F(ZipRefusalTest, refusesLinksThatPointOut)
{
    expectRefusal(linkEntry("l", "/etc"), refusal(QStringLiteral("l"), leadsOutside));
    expectRefusal(linkEntry("l", ".."), refusal(QStringLiteral("l"), leadsOutside));
    expectRefusal(linkEntry("a/l", "../../x"), refusal(QStringLiteral("a/l"), leadsOutside));
    expectRefusal(linkEntry("a/l", "b/../../../x"), refusal(QStringLiteral("a/l"), leadsOutside));
}

TEST_F(ZipRefusalTest, refusesALinkThatPointsOutThroughAnotherOne)
{
    ZipWriter zip;
    zip.addLink("a/b/c", "../..").addLink("d", "a/b/c/..");

    EXPECT_EQ(extract(zip), 1);

    EXPECT_EQ(log, QStringList{refusal(QStringLiteral("d"), leadsOutside)});
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipRefusalTest, refusesLinksThatGoRoundInCircles)
{
    expectRefusal(linkEntry("l", "l"),
                  refusal(QStringLiteral("l"), QStringLiteral("leads through too many links")));
}

TEST_F(ZipRefusalTest, refusesLinksThatLeadNowhere)
{
    const auto reason = QStringLiteral("leads nowhere");
    expectRefusal(linkEntry("l", ""), refusal(QStringLiteral("l"), reason));
    expectRefusal(linkEntry("l", QByteArray(2049, 'n')), refusal(QStringLiteral("l"), reason));
}

TEST_F(ZipRefusalTest, refusesLinksThatLeadAlongTooLongAPath)
{
    // Each of the targets is short enough by itself.
    const auto half = QByteArray("n").repeated(250) + '/';
    const auto target = half.repeated(5);
    ZipWriter zip;
    zip.addLink(target + "again", target).addLink("l", target + "again/" + half);
    EXPECT_EQ(extract(zip), 1);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log.first().endsWith(QStringLiteral("leads along too long a path.")))
        << log.first().toStdString();
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipRefusalTest, refusesNamesThatImplyTooManyFolders)
{
    // A name of 256 bytes implies 127 folders, so that 4,000 small entries make 508,000.
    ZipWriter zip;
    for (int i = 0; i < 4'000; ++i)
        zip.addFile(QByteArray::number(i) + QByteArray("/d").repeated(126) + "/f");

    EXPECT_EQ(extract(zip), 1);

    EXPECT_EQ(log, QStringList{QStringLiteral("The archive has too many files and folders.")});
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipRefusalTest, refusesNamesThatImplyFoldersWithTooLongNames)
{
    // As each folder is remembered by its path, a name of 2 KB takes 130 KB.
    ZipWriter zip;
    for (int i = 0; i < 2'200; ++i)
        zip.addFile(QByteArray::number(10'000 + i) + "/a-folder-of-16/" +
                    QByteArray("a-folder-of-16b/").repeated(125) + "f");

    EXPECT_EQ(extract(zip), 1);

    EXPECT_EQ(log, QStringList{QStringLiteral("The archive has too many files and folders.")});
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipRefusalTest, refusesEntriesBelowALinkOrAFile)
{
    ZipWriter throughLink;
    throughLink.addLink("l", "a").addFile("l/x");
    EXPECT_EQ(extract(throughLink), 1);
    EXPECT_EQ(log, QStringList{refusal(QStringLiteral("l/x"), belowFile)});

    ZipWriter linkLast;
    linkLast.addFile("l/x").addLink("l", "a");
    EXPECT_EQ(extract(linkLast), 1);
    EXPECT_EQ(log, QStringList{refusal(QStringLiteral("l"), twice)});

    expectRefusal({.name = "honest/x"}, refusal(QStringLiteral("honest/x"), belowFile));
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipRefusalTest, refusesNamesThatOccurTwice)
{
    for (const auto* const name : {"honest", "./honest", ".//honest"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), twice));
    expectRefusal({.name = "honest/", .mode = S_IFDIR | 0755},
                  refusal(QStringLiteral("honest/"), twice));
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
    expectRefusal({.name = "secret", .data = QByteArray(20, 'x'), .flags = 1},
                  refusal(QStringLiteral("secret"), QStringLiteral("is encrypted")));
}

TEST_F(ZipRefusalTest, refusesDevicesPipesAndSockets)
{
    for (const auto kind : {S_IFCHR, S_IFBLK, S_IFIFO, S_IFSOCK}) {
        expectRefusal({.name = "special", .mode = static_cast<quint32>(kind) | 0644},
                      refusal(QStringLiteral("special"),
                              QStringLiteral("is neither a file nor a folder nor a link")));
    }
}

TEST_F(ZipRefusalTest, refusesProgramsThatRunAsAnotherUser)
{
    for (const auto mode : {04755U, 02755U}) {
        expectRefusal({.name = "program", .mode = S_IFREG | mode},
                      refusal(QStringLiteral("program"),
                              QStringLiteral("would run with another user's rights")));
    }
}

TEST_F(ZipRefusalTest, refusesWhatDoesNotFitOnTheDisk)
{
    ZipWriter zip;
    for (int i = 0; i < 30'000; ++i)
        zip.add({.name = QByteArray::number(i), .size = 0xfffffff0});

    EXPECT_EQ(extract(zip), 1);

    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log.first().startsWith(QStringLiteral("The archive unpacks to 128.85 TB, and ")))
        << log.first().toStdString();
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
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
    folder.write(QStringLiteral("elsewhere"), "untouched");
    folder.makeFolder(QStringLiteral("un packed"));
    ASSERT_TRUE(QFile::link(folder.path(QStringLiteral("elsewhere")),
                            folder.path(unpacked(QStringLiteral("a")))));

    EXPECT_EQ(extract(ZipWriter().addFile("a", "new")), 1);
    EXPECT_EQ(folder.read(QStringLiteral("elsewhere")), "untouched");
}
