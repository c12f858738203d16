// SPDX-License-Identifier: MIT
#include "Project/ImportChecker.h"

#include "Support/TestFolder.h"
#include "System/Text.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ImportCheckerTest : public testing::Test
{
protected:
    void write(const char* relative, const QByteArray& contents = {}) const
    {
        m_project.write(QString::fromUtf8(relative), contents);
    }

    /// Writes an asset with the record of its import.
    void writeAsset(const QByteArray& record) const
    {
        write("a.png");
        write("a.png.import", record);
    }

    [[nodiscard]] int missingCount() const { return ImportChecker::missingCount(m_project.path()); }

    TestFolder m_project;
};

TEST_F(ImportCheckerTest, countsAnAssetWithoutARecord)
{
    write("a.png");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, countsEveryImportableKindInAnyCaseAndNothingElse)
{
    for (const auto* name :
         {"A.PNG", "a.jpg", "a.jpeg", "a.svg", "a.webp", "a.bmp", "a.tga", "a.ogg", "a.wav",
          "a.Mp3", "a.obj", "a.glb", "a.gltf", "a.dds", "a.hdr", "a.exr"})
        write(name);
    EXPECT_EQ(missingCount(), 16);
    for (const auto* name : {"font.ttf", "script.gd", "scene.tscn", "png", "a.png.txt", "a.pn",
                             "a.pngs", "a.", "a.stex", "a.jpeg2000", "a.xpng"})
        write(name);
    EXPECT_EQ(missingCount(), 16);
}

TEST_F(ImportCheckerTest, countsAnAssetUntilItsConvertedFileExists)
{
    writeAsset("[remap]\n\npath=\"res://.import/a.png-1234.stex\"\n");
    EXPECT_EQ(missingCount(), 1);
    write(".import/a.png-1234.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, resolvesPathsAgainstTheProjectAndNotTheAssetsFolder)
{
    write("art/deep/a.png");
    write("art/deep/a.png.import", "path=\"res://.import/a.stex\"");
    write("art/deep/.import/a.stex");
    EXPECT_EQ(missingCount(), 1);
    write(".import/a.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, isSatisfiedByAnyOfSeveralFormats)
{
    writeAsset(
        "path.s3tc=\"res://.import/a.s3tc.stex\"\npath.etc2=\"res://.import/a.etc2.stex\"\n");
    EXPECT_EQ(missingCount(), 1);
    write(".import/a.etc2.stex");
    EXPECT_EQ(missingCount(), 0);
    QFile::remove(m_project.path(u".import/a.etc2.stex"_s));
    write(".import/a.s3tc.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, takesARecordThatNamesNoConvertedFileAsImported)
{
    write("kept.png");
    write("kept.png.import", "[remap]\nimporter=\"keep\"\n");
    write("other.png");
    write("other.png.import", "path=\"user://a.stex\"\npath\nmypath=\"res://b\"\n");
    write("empty.png");
    write("empty.png.import");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, trimsBlanksAroundLinesAndQuotesAroundValues)
{
    writeAsset("\t path = \" res://x y.stex \" \t\n");
    EXPECT_EQ(missingCount(), 1);
    write("x y.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, keepsACarriageReturnInAPath)
{
    writeAsset("path=\"res://a.stex\"\r\n");
    write("a.stex");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, readsPastAByteOrderMarkAtTheBeginningOfARecord)
{
    writeAsset("\xef\xbb\xbfpath=\"res://a.stex\"\n");
    EXPECT_EQ(missingCount(), 1);
    writeAsset("\n\xef\xbb\xbfpath=\"res://a.stex\"\n");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, looksAtTheFirstEqualsSignOnly)
{
    writeAsset("path=\"res://a=b.stex\"\n");
    write("a=b.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, neverLeavesTheProjectByAnAbsolutePath)
{
    writeAsset("path=\"res:///etc/passwd\"\n");
    EXPECT_EQ(missingCount(), 1);
    write("etc/passwd");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, countsARecordThatIsNotUtf8)
{
    writeAsset("path=\"res://a.stex\"\n\xff\n");
    write("a.stex");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, countsARecordThatIsNoRegularFileOfBoundedSize)
{
    write("folder.png");
    m_project.makeFolder(u"folder.png.import"_s);
    write("pipe.png");
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_project.path(u"pipe.png.import"_s)).constData(), 0600),
              0);
    write("large.png");
    write("large.png.import", QByteArray(Text::maxFileSize + 1, ' '));
    write("largest.png");
    write("largest.png.import", QByteArray(Text::maxFileSize, ' '));
    EXPECT_EQ(missingCount(), 3);
}

TEST_F(ImportCheckerTest, readsEachRecordByItself)
{
    // The second record is shorter than the first, and none of the first's text may show through.
    write("1/a.png");
    write("1/a.png.import", "path=\"res://none.stex\"\npath=\"res://there.stex\"\n");
    write("2/b.png");
    write("2/b.png.import", "path=\"res://none.stex\"\n");
    write("there.stex");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, skipsHiddenFilesAndFolders)
{
    write(".git/a.png");
    write(".git/deep/a.png");
    write(".import/b.png");
    write(".c.png");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, entersFoldersOfAnyDepth)
{
    write("1/2/3/4/5/6/7/8/9/a.png");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, countsAFolderNamedLikeAnAssetAndLooksInside)
{
    write("x.png/inner.png");
    EXPECT_EQ(missingCount(), 2);
    write("x.png.import");
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, countsALinkNamedLikeAnAssetButFollowsNone)
{
    const TestFolder elsewhere;
    elsewhere.write(u"outside.png"_s);
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_project.path(u"linked"_s)));
    ASSERT_TRUE(QFile::link(m_project.path(), m_project.path(u"loop"_s)));
    EXPECT_EQ(missingCount(), 0);
    ASSERT_TRUE(QFile::link(elsewhere.path(u"outside.png"_s), m_project.path(u"link.png"_s)));
    EXPECT_EQ(missingCount(), 1);
}

TEST_F(ImportCheckerTest, readsNamesThatAreNotAscii)
{
    write("größe/€ ✓.png");
    write("größe/€ ✓.png.import", "path=\"res://.import/€ ✓.stex\"");
    EXPECT_EQ(missingCount(), 1);
    write(".import/€ ✓.stex");
    EXPECT_EQ(missingCount(), 0);
}

TEST_F(ImportCheckerTest, readsNamesThatAreNotUtf8)
{
    const auto name = QFile::encodeName(m_project.path()) + "/\xff\xfe.png";
    ASSERT_EQ(::mknod(name.constData(), S_IFREG | 0600, 0), 0);
    EXPECT_EQ(missingCount(), 1);
    ASSERT_EQ(::unlink(name.constData()), 0); // QTemporaryDir cannot.
}

TEST_F(ImportCheckerTest, returnsZeroForAFolderThatDoesNotExist)
{
    EXPECT_EQ(ImportChecker::missingCount(m_project.path(u"none"_s)), 0);
}

TEST_F(ImportCheckerTest, returnsZeroForAFile)
{
    write("a.png");
    EXPECT_EQ(ImportChecker::missingCount(m_project.path(u"a.png"_s)), 0);
}

TEST_F(ImportCheckerTest, returnsZeroWhenItIsToStop)
{
    write("a.png");
    std::stop_source stop;
    EXPECT_EQ(ImportChecker::missingCount(m_project.path(), stop.get_token()), 1);
    stop.request_stop();
    EXPECT_EQ(ImportChecker::missingCount(m_project.path(), stop.get_token()), 0);
}

} // namespace
