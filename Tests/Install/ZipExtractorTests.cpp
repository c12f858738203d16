// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

#include <QFileInfo>
#include <QHash>

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
