// SPDX-License-Identifier: MIT
#include "Project/ProjectInspector.h"

#include "Support/Listing.h"
#include "Support/TestFolder.h"
#include "System/Text.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QByteArray projectFile = "project.godot";

class ProjectInspectorTest : public testing::Test
{
protected:
    [[nodiscard]] std::optional<ProjectInfo> inspect(const QByteArray& text) const
    {
        m_folder.write(QString::fromUtf8(projectFile), text);
        return ProjectInspector::inspect(m_folder.path());
    }

    /// inspect() of a file that has a usable version before `text`.
    [[nodiscard]] ProjectInfo inspectWithVersion(const QByteArray& text) const
    {
        const auto info = inspect("config_version=4\n" + text);
        EXPECT_TRUE(info.has_value());
        return info.value_or(ProjectInfo());
    }

    TestFolder m_folder;
};

TEST_F(ProjectInspectorTest, usesDefaultsForAFileThatHoldsTheVersionOnly)
{
    ProjectInfo expected;
    expected.folder = m_folder.path();
    expected.configVersion = 4;
    EXPECT_EQ(inspect("config_version=4"), expected);
    EXPECT_EQ(expected.name, u"Game"_s);
}

TEST_F(ProjectInspectorTest, readsARealProjectFile)
{
    const auto info = inspect("; Engine configuration file.\n"
                              "config_version=4\n\n[application]\n\n"
                              "config/name=\"Tiny Größe\"\n"
                              "run/main_scene=\"res://Main.tscn\"\n"
                              "config/features=PackedStringArray(\"3.5\", \"Mobile\")\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->name, u"Tiny Größe"_s);
    EXPECT_EQ(info->configVersion, 4);
    EXPECT_EQ(info->mainScene, u"res://Main.tscn"_s);
    EXPECT_EQ(info->features, (QStringList{u"3.5"_s, u"Mobile"_s}));
    EXPECT_FALSE(info->usesCSharp);
}

TEST_F(ProjectInspectorTest, returnsNothingWithoutAUsableVersion)
{
    for (const auto* version : {"abc", "", "0", "4x", "x4", "4.0", "+", "-", "--4", "0x4", "4 4",
                                "99999999999999999999", "\xd9\xa4" /* a digit, but not of ours */})
        EXPECT_EQ(inspect(QByteArray("config_version=") + version + '\n'), std::nullopt) << version;
    EXPECT_EQ(inspect(""), std::nullopt);
    EXPECT_EQ(inspect("config_version =4\n"), std::nullopt);
}

TEST_F(ProjectInspectorTest, readsPastAByteOrderMarkAtTheBeginning)
{
    EXPECT_NE(inspect("\xef\xbb\xbf"
                      "config_version=4\n"),
              std::nullopt);
    EXPECT_EQ(inspect("\n\xef\xbb\xbf"
                      "config_version=4\n"),
              std::nullopt);
}

TEST_F(ProjectInspectorTest, readsAVersionWithASignAndBlanks)
{
    EXPECT_EQ(inspect(" \tconfig_version= \t+5 \t\n")->configVersion, 5);
    EXPECT_EQ(inspect("config_version=-2")->configVersion, -2);
    EXPECT_EQ(inspect("config_version=3000000000")->configVersion, 3'000'000'000);
}

TEST_F(ProjectInspectorTest, doesNotReadAVersionThatACarriageReturnFollows)
{
    EXPECT_EQ(inspect("config_version=4\r\nconfig/name=\"A\"\r\n"), std::nullopt);
    EXPECT_EQ(inspectWithVersion("config/name=\"A\"\r\n").name, u"A"_s);
}

TEST_F(ProjectInspectorTest, lastVersionWinsEvenWhenItIsUnusable)
{
    EXPECT_EQ(inspect("config_version=4\nconfig_version=5\n")->configVersion, 5);
    EXPECT_EQ(inspect("config_version=4\nconfig_version=x\n"), std::nullopt);
}

TEST_F(ProjectInspectorTest, ignoresANameWithABlankBeforeTheEqualsSign)
{
    EXPECT_EQ(inspectWithVersion("config/name =\"A\"\n").name, u"Game"_s);
}

TEST_F(ProjectInspectorTest, readsAnEmptyName)
{
    EXPECT_EQ(inspectWithVersion("config/name=\"\"\n").name, QString());
}

TEST_F(ProjectInspectorTest, keepsTheNameWhenALineHoldsNoQuotedText)
{
    EXPECT_EQ(inspectWithVersion("config/name=\"A\"\nconfig/name=B\n").name, u"A"_s);
    EXPECT_EQ(inspectWithVersion("config/name=\"unclosed\n").name, u"Game"_s);
}

TEST_F(ProjectInspectorTest, clearsTheMainSceneWhenALineHoldsNoQuotedText)
{
    EXPECT_EQ(inspectWithVersion("run/main_scene=\"res://A\"\nrun/main_scene=B\n").mainScene,
              QString());
}

TEST_F(ProjectInspectorTest, knowsNoEscapesInQuotes)
{
    EXPECT_EQ(inspectWithVersion("config/name=\"a \\\" b\"\n").name, u"a \\"_s);
}

TEST_F(ProjectInspectorTest, seesCSharpInTheFeatures)
{
    EXPECT_TRUE(inspectWithVersion("config/features=[\"3.5\", \"C#\"]\n").usesCSharp);
    EXPECT_FALSE(inspectWithVersion("config/features=[\"3.5\", \"c#\", \"C# \"]\n").usesCSharp);
}

TEST_F(ProjectInspectorTest, seesCSharpInAMonoSection)
{
    EXPECT_TRUE(inspectWithVersion("[mono]\n").usesCSharp);
    EXPECT_FALSE(inspectWithVersion("[Mono]\n").usesCSharp);
}

TEST_F(ProjectInspectorTest, seesCSharpInASolutionOrProjectFileBesideIt)
{
    m_folder.write(u"sub/Game.sln"_s);
    m_folder.write(u"Game.SLN"_s);
    EXPECT_FALSE(inspectWithVersion("").usesCSharp);
    const auto solution = m_folder.write(u"Game.sln"_s);
    EXPECT_TRUE(inspectWithVersion("").usesCSharp);
    QFile::remove(solution);
    m_folder.write(u".hidden.csproj"_s);
    EXPECT_TRUE(inspectWithVersion("").usesCSharp);
}

TEST_F(ProjectInspectorTest, returnsNothingForAFileItCannotUse)
{
    EXPECT_EQ(ProjectInspector::inspect(m_folder.path()), std::nullopt);
    EXPECT_EQ(inspect("config_version=4\nconfig/name=\"\xff\"\n"), std::nullopt);
    EXPECT_EQ(inspect("config_version=4\n" + QByteArray(Text::maxFileSize, ' ')), std::nullopt);
    const TestFolder other;
    other.makeFolder(QString::fromUtf8(projectFile));
    EXPECT_EQ(ProjectInspector::inspect(other.path()), std::nullopt);
}

class FindProjectTest : public testing::Test
{
protected:
    void writeProject(const char* folder) const
    {
        m_root.write(QString::fromUtf8(folder) + u"/project.godot"_s);
    }

    /// The found folder, as seen from the root; "none" when none was found.
    [[nodiscard]] QString found() const
    {
        const auto folder = ProjectInspector::findProject(m_root.path());
        if (!folder)
            return u"none"_s;
        EXPECT_TRUE(folder->startsWith(m_root.path()));
        return folder->sliced(m_root.path().size());
    }

    TestFolder m_root;
};

TEST_F(FindProjectTest, prefersTheRoot)
{
    writeProject(".");
    writeProject("a");
    EXPECT_EQ(found(), QString());
}

TEST_F(FindProjectTest, findsAProjectOneFolderBelowTheTop)
{
    m_root.write(u"tetherwalk-master/README.md"_s);
    writeProject("tetherwalk-master/game");
    EXPECT_EQ(found(), u"/tetherwalk-master/game"_s);
}

TEST_F(FindProjectTest, prefersTheShallowestFolder)
{
    writeProject("a/b/c");
    writeProject("z/y");
    EXPECT_EQ(found(), u"/z/y"_s);
}

TEST_F(FindProjectTest, prefersTheFolderThatIsListedFirst)
{
    for (const auto* folder : {"m", "b", "z", "a", "y", "c", "n"})
        writeProject(folder);
    EXPECT_EQ(found(), u'/' + listing(m_root.path()).first());
}

TEST_F(FindProjectTest, prefersAFolderWhoseParentIsListedFirst)
{
    for (const auto* folder : {"m/9", "b/8", "z/7", "a/6", "y/5", "c/4", "n/3"})
        writeProject(folder);
    const auto parent = u'/' + listing(m_root.path()).first();
    EXPECT_EQ(found(), parent + u'/' + listing(m_root.path() + parent).first());
}

TEST_F(FindProjectTest, looksFourLevelsDownAndNoDeeper)
{
    writeProject("1/2/3/4/5");
    EXPECT_EQ(found(), u"none"_s);
    writeProject("1/2/3/4");
    EXPECT_EQ(found(), u"/1/2/3/4"_s);
}

TEST_F(FindProjectTest, searchesABoundedNumberOfFolders)
{
    writeProject("1/2/3");
    for (int folder = 0; folder < 9'997; ++folder)
        m_root.makeFolder(u"1/empty-%1"_s.arg(folder));
    EXPECT_EQ(found(), u"none"_s);
    ASSERT_TRUE(QDir().rmdir(m_root.path(u"1/empty-0"_s)));
    EXPECT_EQ(found(), u"/1/2/3"_s);
}

TEST_F(FindProjectTest, doesNotEnterHiddenFolders)
{
    writeProject(".hidden");
    EXPECT_EQ(found(), u"none"_s);
}

TEST_F(FindProjectTest, doesNotFollowLinks)
{
    const TestFolder elsewhere;
    elsewhere.write(u"project.godot"_s);
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_root.path(u"link"_s)));
    EXPECT_EQ(found(), u"none"_s);
}

TEST_F(FindProjectTest, findsNothingInAnEmptyOrMissingFolder)
{
    EXPECT_EQ(found(), u"none"_s);
    EXPECT_EQ(ProjectInspector::findProject(m_root.path(u"none"_s)), std::nullopt);
}

} // namespace
