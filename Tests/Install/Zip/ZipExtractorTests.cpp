// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

#include "System/FileTree.h"

#include <QFileInfo>
#include <QHash>
#include <QProcess>

#include <random>

#include <unistd.h>

#include <locale.h>

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
    EXPECT_EQ(folder.read(unpacked(u"top/stored"_s)), "stored bytes");
    EXPECT_EQ(folder.read(unpacked(u"top/deep/er/deflated"_s)), large);
    EXPECT_EQ(folder.read(unpacked(u"top/empty"_s)), "");
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

    EXPECT_EQ(extract(zip), 0) << log.join(u'\n');

    for (const auto& [name, data] : contents.asKeyValueRange())
        EXPECT_EQ(folder.read(unpacked(name)), data) << name;
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
    EXPECT_EQ(modeOf(u"f"_s), 0755U);
    EXPECT_EQ(modeOf(u"f/program"_s), 0755U);
    EXPECT_EQ(modeOf(u"f/open"_s), 0644U);
    EXPECT_EQ(modeOf(u"f/closed"_s), 0644U);
    EXPECT_EQ(modeOf(u"f/sticky"_s), 0644U);
    EXPECT_EQ(modeOf(u"plain"_s), 0644U);
}

TEST_F(ZipExtractorTest, keepsLinksThatStayInside)
{
    ZipWriter zip;
    zip.addLink("a/b/up", "../file").addFile("a/file", "x").addLink("dangling", "a/none");

    EXPECT_EQ(extract(zip), 0);

    const auto path = folder.path(unpacked(u"a/b/up"_s));
    EXPECT_TRUE(QFileInfo(path).isSymbolicLink());
    EXPECT_EQ(folder.read(unpacked(u"a/b/up"_s)), "x");
    EXPECT_TRUE(QFileInfo(folder.path(unpacked(u"dangling"_s))).isSymbolicLink());
}

TEST_F(ZipExtractorTest, keepsALinkToANameWhoseAccentIsACharacterOfItsOwn)
{
    constexpr quint16 nameIsUtf8 = 1 << 11;
    ZipWriter zip;
    zip.add({.name = "cafe\xcc\x81", .data = "x", .flags = nameIsUtf8})
        .add({.name = "l", .data = "cafe\xcc\x81", .mode = S_IFLNK | 0777});

    EXPECT_EQ(extract(zip), 0);
    EXPECT_EQ(folder.read(unpacked(u"l"_s)), "x");
}

TEST_F(ZipExtractorTest, unpacksWhatTheUsualToolsMake)
{
    folder.write(u"tree/folder/text"_s, QByteArray(5'000, 'x'));
    folder.write(u"tree/Schön 日本.png"_s, "an image");
    folder.writeScript(u"tree/program"_s, "exit 0");
    ASSERT_TRUE(QFile::link(u"folder/text"_s, folder.path(u"tree/l"_s)));
    const auto python =
        u"import sys, zipfile\n"
        "z = zipfile.ZipFile(sys.stdout.buffer, 'w', zipfile.ZIP_DEFLATED)\n"
        "z.comment = b'a comment'\n"
        "for n in ('folder/text', 'Schön 日本.png', 'program'): z.write(n)\n"
        "i = zipfile.ZipInfo('l'); i.create_system = 3; i.external_attr = 0o120777 << 16\n"
        "z.writestr(i, 'folder/text'); z.close()"_s;
    const QList<QStringList> tools{
        {u"zip"_s, u"-qry"_s, u"../made.zip"_s, u"."_s},
        {u"7z"_s, u"a"_s, u"-tzip"_s, u"-snl"_s, u"../made.zip"_s, u"."_s},
        {u"sh"_s, u"-c"_s, u"python3 -c \"$0\" >../made.zip"_s, python},
        {u"sh"_s, u"-c"_s,
         u"git init -q . && git add . && git -c user.name=t -c user.email=t commit "
         "-qm t && git archive -o ../made.zip HEAD"_s}};
    for (const auto& tool : tools) {
        QFile::remove(folder.path(u"made.zip"_s));
        QProcess process;
        process.setWorkingDirectory(folder.path(u"tree"_s));
        process.start(tool.first(), tool.sliced(1));
        ASSERT_TRUE(process.waitForFinished(-1) && process.exitCode() == 0)
            << tool.first() << process.readAllStandardError().constData();

        EXPECT_EQ(extract(folder.read(u"made.zip"_s)), 0) << tool.first() << ": " << log.join(u' ');

        EXPECT_EQ(folder.read(unpacked(u"l"_s)), QByteArray(5'000, 'x'));
        EXPECT_EQ(folder.read(unpacked(u"Schön 日本.png"_s)), "an image");
        EXPECT_EQ(modeOf(u"program"_s), 0755U);
        FileTree::remove(folder.path(u"un packed"_s));
    }
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

    EXPECT_EQ(folder.names(u"un packed"_s).size(), 3);
    EXPECT_TRUE(folder.exists(unpacked(u"Schön 日本.png"_s)));
    EXPECT_TRUE(folder.exists(unpacked(u"naïve.png"_s)));
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
    EXPECT_TRUE(folder.exists(unpacked(u"Schön 日本.png"_s)));
}

TEST_F(ZipExtractorTest, keepsANameWhoseBytesAreNotUtf8)
{
    ZipWriter zip;
    zip.addFile("caf\x82.txt", "x");

    EXPECT_EQ(extract(zip), 0);

    // The library that removes the test's folder cannot name this file.
    const auto path = folder.path(u"un packed"_s).toUtf8() + "/caf\x82.txt";
    EXPECT_EQ(::unlink(path.constData()), 0);
}

TEST_F(ZipExtractorTest, readsZip64)
{
    ZipWriter zip;
    zip.add({.name = "a", .data = "first", .zip64 = true}).addFile("b", "second");

    EXPECT_EQ(extract(zip), 0);
    EXPECT_EQ(folder.read(unpacked(u"a"_s)), "first");
    EXPECT_EQ(folder.read(unpacked(u"b"_s)), "second");
}
