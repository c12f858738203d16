// SPDX-License-Identifier: MIT
#include "Install/ZipExtractor.h"

#include "Platform/Cancelled.h"
#include "Support/TestFolder.h"
#include "Support/ZipWriter.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <csignal>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <locale.h>

namespace {

class ZipExtractorTest : public testing::Test
{
protected:
    int extract(const QByteArray& archive)
    {
        log.clear();
        const auto file = folder.write(QStringLiteral("the archive.zip"), archive);
        const auto target = folder.makeFolder(QStringLiteral("un packed"));
        return ZipExtractor::extract(
            file, target, [this](const QString& line) { log.append(line); }, stop.get_token());
    }
    int extract(const ZipWriter& zip) { return extract(zip.archive()); }

    /// A refused archive leaves nothing, not even its honest first entry.
    void expectRefusal(const ZipWriter::Entry& hostile, const QString& reason)
    {
        ZipWriter zip;
        zip.addFile("honest").add(hostile).addFile("last");
        EXPECT_EQ(extract(zip), 1) << hostile.name.constData();
        EXPECT_EQ(log, QStringList{reason});
        EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
    }

    [[nodiscard]] QString unpacked(const QString& name) const
    {
        return QStringLiteral("un packed/") + name;
    }
    [[nodiscard]] unsigned modeOf(const QString& name) const
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(QFile::encodeName(folder.path(unpacked(name))).constData(), &status), 0);
        return status.st_mode & 07777;
    }

    TestFolder folder;
    QStringList log;
    std::stop_source stop;
};

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

TEST_F(ZipExtractorTest, unpacksFilesAndFolders)
{
    const QByteArray large(3'000'000, 'x');
    ZipWriter zip;
    zip.add({.name = "top/", .mode = S_IFDIR | 0755})
        .addFile("top/stored", "stored bytes")
        .add({.name = "top/deep/er/deflated", .data = large, .deflated = true})
        .addFile("top/empty");

    EXPECT_EQ(extract(zip), 0);

    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("top/stored"))), "stored bytes");
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("top/deep/er/deflated"))), large);
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("top/empty"))), "");
}

TEST_F(ZipExtractorTest, unpacksFilesWhereverTheInputBufferEnds)
{
    // Entries of many sizes lie across the buffer's end in every way.
    std::minstd_rand random(1);
    QHash<QString, QByteArray> contents;
    ZipWriter zip;
    for (int i = 0; i < 2'000; ++i) {
        QByteArray data(static_cast<qsizetype>(1 + random() % 500), Qt::Uninitialized);
        for (auto& byte : data)
            byte = static_cast<char>(random() % 64);
        zip.add({.name = QByteArray::number(i), .data = data, .deflated = true});
        contents.insert(QString::number(i), data);
    }

    EXPECT_EQ(extract(zip), 0) << log.join(u'\n').toStdString();

    for (const auto& [name, data] : contents.asKeyValueRange())
        EXPECT_EQ(folder.read(unpacked(name)), data) << name.toStdString();
}

TEST_F(ZipExtractorTest, keepsTheExecuteBitAndNoOtherMode)
{
    ZipWriter zip;
    zip.add({.name = "f/", .mode = S_IFDIR | 0500})
        .add({.name = "f/program", .mode = S_IFREG | 0711})
        .add({.name = "f/open", .mode = S_IFREG | 0666})
        .add({.name = "f/closed", .mode = S_IFREG | 0400})
        .add({.name = "f/sticky", .mode = S_IFREG | 01644})
        .add({.name = "plain", .mode = 0});
    const auto mask = ::umask(022);

    EXPECT_EQ(extract(zip), 0);

    ::umask(mask);
    EXPECT_EQ(modeOf(QStringLiteral("f")), 0755U);
    EXPECT_EQ(modeOf(QStringLiteral("f/program")), 0755U);
    EXPECT_EQ(modeOf(QStringLiteral("f/open")), 0644U);
    EXPECT_EQ(modeOf(QStringLiteral("f/closed")), 0644U);
    EXPECT_EQ(modeOf(QStringLiteral("f/sticky")), 0644U);
    EXPECT_EQ(modeOf(QStringLiteral("plain")), 0644U);
}

TEST_F(ZipExtractorTest, keepsLinksThatStayInside)
{
    ZipWriter zip;
    zip.addLink("a/b/up", "../file").addFile("a/file", "x").addLink("dangling", "a/none");

    EXPECT_EQ(extract(zip), 0);

    const auto path = folder.path(unpacked(QStringLiteral("a/b/up")));
    EXPECT_TRUE(QFileInfo(path).isSymbolicLink());
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("a/b/up"))), "x");
    EXPECT_TRUE(QFileInfo(folder.path(unpacked(QStringLiteral("dangling")))).isSymbolicLink());
}

TEST_F(ZipExtractorTest, keepsNamesThatAreNotAscii)
{
    constexpr quint16 nameIsUtf8 = 1 << 11;
    // The second name has its accent as a character of its own.
    ZipWriter zip;
    zip.add({.name = "Schön 日本.png", .flags = nameIsUtf8})
        .add({.name = "cafe\xcc\x81", .flags = nameIsUtf8})
        .add({.name = "naïve.png"});

    EXPECT_EQ(extract(zip), 0);

    EXPECT_EQ(folder.names(QStringLiteral("un packed")).size(), 3);
    EXPECT_TRUE(folder.exists(unpacked(QStringLiteral("Schön 日本.png"))));
    EXPECT_TRUE(folder.exists(unpacked(QStringLiteral("naïve.png"))));
    EXPECT_TRUE(folder.exists(unpacked(QString::fromUtf8("cafe\xcc\x81"))));
}

TEST_F(ZipExtractorTest, keepsNamesThatAreNotAsciiWithoutALocaleOfTheUser)
{
    constexpr quint16 nameIsUtf8 = 1 << 11;
    ZipWriter zip;
    zip.add({.name = "Schön 日本.png", .flags = nameIsUtf8});
    const auto plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const auto before = ::uselocale(plain);

    EXPECT_EQ(extract(zip), 0);

    ::uselocale(before);
    ::freelocale(plain);
    EXPECT_TRUE(folder.exists(unpacked(QStringLiteral("Schön 日本.png"))));
}

TEST_F(ZipExtractorTest, keepsANameWhoseBytesAreNotUtf8)
{
    ZipWriter zip;
    zip.addFile("caf\x82.txt", "x");

    EXPECT_EQ(extract(zip), 0);

    // The library that removes the test's folder cannot name this file.
    const auto path = folder.path(QStringLiteral("un packed")).toUtf8() + "/caf\x82.txt";
    EXPECT_EQ(::unlink(path.constData()), 0);
}

TEST_F(ZipExtractorTest, readsZip64)
{
    ZipWriter zip;
    zip.add({.name = "a", .data = "first", .zip64 = true}).addFile("b", "second");

    EXPECT_EQ(extract(zip), 0);
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("a"))), "first");
    EXPECT_EQ(folder.read(unpacked(QStringLiteral("b"))), "second");
}

TEST_F(ZipExtractorTest, refusesAnArchiveWithoutEntries)
{
    EXPECT_EQ(extract(ZipWriter()), 1);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ZipExtractorTest, refusesNamesThatLeaveTheFolder)
{
    for (const auto* const name : {"../x", "a/../../x", "a/..", "..", "/etc/x", "//x", "a/../b"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), outside));
}

TEST_F(ZipExtractorTest, refusesNamesThatAreNone)
{
    expectRefusal({.name = "."}, refusal(QStringLiteral("."), QStringLiteral("has no name")));
    expectRefusal({.name = ""}, refusal({}, QStringLiteral("has no name")));
    expectRefusal({.name = QByteArray("a\0/x", 4)},
                  refusal(QStringLiteral("a\uFFFD/x"), QStringLiteral("has no name")));
}

TEST_F(ZipExtractorTest, refusesNamesTooLongOrTooDeep)
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

TEST_F(ZipExtractorTest, refusesLinksThatPointOut)
{
    expectRefusal(linkEntry("l", "/etc"), refusal(QStringLiteral("l"), leadsOutside));
    expectRefusal(linkEntry("l", ".."), refusal(QStringLiteral("l"), leadsOutside));
    expectRefusal(linkEntry("a/l", "../../x"), refusal(QStringLiteral("a/l"), leadsOutside));
    expectRefusal(linkEntry("a/l", "b/../../../x"), refusal(QStringLiteral("a/l"), leadsOutside));
}

TEST_F(ZipExtractorTest, refusesALinkThatPointsOutThroughAnotherOne)
{
    ZipWriter zip;
    zip.addLink("a/b/c", "../..").addLink("d", "a/b/c/..");

    EXPECT_EQ(extract(zip), 1);

    EXPECT_EQ(log, QStringList{refusal(QStringLiteral("d"), leadsOutside)});
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipExtractorTest, refusesLinksThatGoRoundInCircles)
{
    expectRefusal(linkEntry("l", "l"),
                  refusal(QStringLiteral("l"), QStringLiteral("leads through too many links")));
}

TEST_F(ZipExtractorTest, refusesEntriesBelowALinkOrAFile)
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

TEST_F(ZipExtractorTest, refusesNamesThatOccurTwice)
{
    for (const auto* const name : {"honest", "./honest", ".//honest"})
        expectRefusal({.name = name}, refusal(QString::fromLatin1(name), twice));
    expectRefusal({.name = "honest/", .mode = S_IFDIR | 0755},
                  refusal(QStringLiteral("honest/"), twice));
}

TEST_F(ZipExtractorTest, acceptsAFolderNamedAfterItsFiles)
{
    ZipWriter zip;
    zip.addFile("a/b/c")
        .add({.name = "a/", .mode = S_IFDIR | 0755})
        .add({.name = "./", .mode = S_IFDIR | 0755});

    EXPECT_EQ(extract(zip), 0);
}

TEST_F(ZipExtractorTest, refusesEncryptedEntries)
{
    expectRefusal({.name = "secret", .data = QByteArray(20, 'x'), .flags = 1},
                  refusal(QStringLiteral("secret"), QStringLiteral("is encrypted")));
}

TEST_F(ZipExtractorTest, refusesDevicesPipesAndSockets)
{
    for (const auto kind : {S_IFCHR, S_IFBLK, S_IFIFO, S_IFSOCK}) {
        expectRefusal({.name = "special", .mode = static_cast<quint32>(kind) | 0644},
                      refusal(QStringLiteral("special"),
                              QStringLiteral("is neither a file nor a folder nor a link")));
    }
}

TEST_F(ZipExtractorTest, refusesProgramsThatRunAsAnotherUser)
{
    for (const auto mode : {04755U, 02755U}) {
        expectRefusal({.name = "program", .mode = S_IFREG | mode},
                      refusal(QStringLiteral("program"),
                              QStringLiteral("would run with another user's rights")));
    }
}

TEST_F(ZipExtractorTest, refusesWhatDoesNotFitOnTheDisk)
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

TEST_F(ZipExtractorTest, refusesWhatIsNoArchive)
{
    for (const auto& bytes : {QByteArray(), QByteArray("PK"), QByteArray(100'000, 'x'),
                              QByteArray("<html>Not found</html>")}) {
        EXPECT_EQ(extract(bytes), 1);
        EXPECT_EQ(log.size(), 1);
        EXPECT_TRUE(log.value(0).startsWith(QStringLiteral("The archive cannot be read: ")));
    }
}

TEST_F(ZipExtractorTest, refusesATruncatedArchiveAtEveryLength)
{
    ZipWriter zip;
    zip.addFile("first", "some bytes").addLink("second", "first");
    const auto whole = zip.archive();

    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(extract(whole.first(size)), 1) << size;
        EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty()) << size;
    }
    EXPECT_EQ(extract(whole), 0);
}

TEST_F(ZipExtractorTest, refusesAnArchiveWithoutItsDirectory)
{
    const auto whole = ZipWriter().addFile("first", "some bytes").archive();

    EXPECT_EQ(extract(whole.first(whole.indexOf("PK\1\2")) + QByteArray(50'000, '\0')), 1);
}

TEST_F(ZipExtractorTest, failsOnABadChecksum)
{
    for (const auto deflated : {false, true}) {
        ZipWriter zip;
        zip.add({.name = "a", .data = "some bytes", .deflated = deflated, .checksum = 1234});

        EXPECT_EQ(extract(zip), 1);
        EXPECT_EQ(log.size(), 1);
        QFile::remove(folder.path(unpacked(QStringLiteral("a"))));
    }
}

TEST_F(ZipExtractorTest, failsWhenTheAnnouncedSizeIsNotTheTrueOne)
{
    for (const quint32 size : {5U, 50U}) {
        ZipWriter zip;
        zip.add({.name = "a",
                 .data = QByteArray("some bytes").repeated(3),
                 .deflated = true,
                 .size = size});

        EXPECT_EQ(extract(zip), 1);
        EXPECT_LE(QFileInfo(folder.path(unpacked(QStringLiteral("a")))).size(), 30);
        QFile::remove(folder.path(unpacked(QStringLiteral("a"))));
    }
}

TEST_F(ZipExtractorTest, failsOnDamagedData)
{
    auto bytes = ZipWriter()
                     .add({.name = "a", .data = QByteArray(5'000, 'x') + "yz", .deflated = true})
                     .archive();
    bytes[40] = static_cast<char>(~bytes[40]);

    EXPECT_EQ(extract(bytes), 1);
    EXPECT_EQ(log.size(), 1);
}

TEST_F(ZipExtractorTest, showsAHostileNameOnOneLine)
{
    ZipWriter zip;
    zip.addFile("../a\nb\x1b[2J");

    EXPECT_EQ(extract(zip), 1);

    ASSERT_EQ(log.size(), 1);
    EXPECT_FALSE(log.first().contains(u'\n'));
    EXPECT_FALSE(log.first().contains(QChar(0x1b)));
}

TEST_F(ZipExtractorTest, failsWhenAFileCannotBeWritten)
{
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto archive = ZipWriter()
                             .add({.name = "a", .data = QByteArray(999'999, 'x'), .deflated = true})
                             .archive();
    const rlimit limited{100'000, before.rlim_max};
    const auto handlerBefore = ::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);

    const auto status = extract(archive);

    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, handlerBefore);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(log, QStringList{QStringLiteral("Could not write “a”: File too large.")});
}

TEST_F(ZipExtractorTest, neverWritesThroughALinkThatWasThereBefore)
{
    folder.write(QStringLiteral("elsewhere"), "untouched");
    folder.makeFolder(QStringLiteral("un packed"));
    ASSERT_TRUE(QFile::link(folder.path(QStringLiteral("elsewhere")),
                            folder.path(unpacked(QStringLiteral("a")))));

    EXPECT_EQ(extract(ZipWriter().addFile("a", "new")), 1);
    EXPECT_EQ(folder.read(QStringLiteral("elsewhere")), "untouched");
}

TEST_F(ZipExtractorTest, endsWithCancelled)
{
    stop.request_stop();

    EXPECT_THROW(extract(ZipWriter().addFile("a", "x")), Cancelled);
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}
