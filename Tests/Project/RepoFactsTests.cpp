// SPDX-License-Identifier: MIT
#include "Project/ProjectInspector.h"
#include "Support/Listing.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RepoFactsTest : public testing::Test
{
protected:
    void write(const char* relative, const QByteArray& text) const
    {
        m_root.write(u"Game/"_s + QString::fromUtf8(relative), text);
    }

    /// The facts for a folder of the game, with the game folder as the one to stop at.
    [[nodiscard]] RepoFacts facts(const char* folder = ".") const
    {
        return ProjectInspector::facts(m_root.path(u"Game/"_s + QString::fromUtf8(folder)),
                                       m_root.path(u"Game"_s));
    }

    TestFolder m_root;
};

TEST_F(RepoFactsTest, areTheDefaultsWithoutAnyFile)
{
    m_root.makeFolder(u"Game"_s);
    EXPECT_EQ(facts(), RepoFacts());
    EXPECT_EQ(facts("missing"), RepoFacts());
}

TEST_F(RepoFactsTest, takeTheSummaryFromAKeywordInAnyCaseWithoutBlanks)
{
    write("README.org", "* Title\n#+description:   A tiny game  \n");
    EXPECT_EQ(facts().summary, u"A tiny game"_s);
}

TEST_F(RepoFactsTest, ignoreAnIndentedKeyword)
{
    write("README.org", " #+DESCRIPTION: A tiny game\n");
    EXPECT_EQ(facts(), RepoFacts());
}

TEST_F(RepoFactsTest, ignoreAKeywordWithNothingAfterIt)
{
    write("README.org", "#+DESCRIPTION: First\n#+DESCRIPTION: \t\n#+DESCRIPTION:");
    EXPECT_EQ(facts().summary, u"First"_s);
}

TEST_F(RepoFactsTest, areReadFromABoundedAmountOfText)
{
    constexpr qsizetype mebibyte = 1024 * 1024;
    write("game/LICENSE", "Inner\n" + QByteArray(3 * mebibyte, ' '));
    write("LICENSE", "Outer\n" + QByteArray(2 * mebibyte, ' '));
    EXPECT_EQ(facts("game").license, u"Inner"_s);
    write("LICENSE", "Outer\n");
    EXPECT_EQ(facts("game").license, u"Outer"_s);
}

TEST_F(RepoFactsTest, takeTheLastOfSeveralSummaries)
{
    write("readme", "#+DESCRIPTION: First\n#+Description:Second\n");
    EXPECT_EQ(facts().summary, u"Second"_s);
}

TEST_F(RepoFactsTest, takeNameAndCopyrightFromALicenceFile)
{
    write("LICENSE", "\n \t\n  The Zero License \n\n text\n\tCopyright (c) 2019 Somebody \n"
                     "Copyright (c) 2020 Somebody else\n");
    RepoFacts expected;
    expected.license = u"The Zero License"_s;
    expected.author = u"Copyright (c) 2019 Somebody"_s;
    EXPECT_EQ(facts(), expected);
}

TEST_F(RepoFactsTest, takeOnlyTheNameFromALicenceFileWithoutACopyrightLine)
{
    write("license.txt", "Some License\nNo copyright line starts with that word.\n");
    RepoFacts expected;
    expected.license = u"Some License"_s;
    EXPECT_EQ(facts(), expected);
}

TEST_F(RepoFactsTest, takeNothingFromAnEmptyOrUnreadableLicenceFile)
{
    write("LICENSE", "\n \n");
    write("a/LICENSE.md", "Latin \xe9\n");
    m_root.makeFolder(u"Game/a/b/LICENSE"_s);
    EXPECT_EQ(facts("a/b"), RepoFacts());
}

TEST_F(RepoFactsTest, ignoreTheOtherSpelling)
{
    write("LICENCE", "Some Licence\n");
    EXPECT_EQ(facts(), RepoFacts());
}

TEST_F(RepoFactsTest, ofAFileThatIsListedLaterOverrideThoseOfAnEarlierOne)
{
    for (const QByteArray name : {"m", "b", "z", "a", "y", "c", "n"}) {
        write("license." + name, "License " + name + "\nCopyright " + name + '\n');
        write("readme." + name, "#+DESCRIPTION: Summary " + name + '\n');
    }
    const auto names = listing(m_root.path(u"Game"_s));
    const auto lastOf = [&names](QLatin1String kind) {
        return names.filter(kind).last().sliced(kind.size() + 1);
    };
    const auto license = lastOf("license"_L1);
    EXPECT_EQ(facts().license, u"License "_s + license);
    EXPECT_EQ(facts().author, u"Copyright "_s + license);
    EXPECT_EQ(facts().summary, u"Summary "_s + lastOf("readme"_L1));
}

TEST_F(RepoFactsTest, stayWhenAFileThatIsListedLaterLacksThem)
{
    // Each of the two is the later one in one of the rounds, whatever the order is.
    for (const auto* full : {"1", "2"}) {
        const auto* empty = *full == '1' ? "2" : "1";
        write(QByteArray("LICENSE") + full, "A License\nCopyright Somebody\n");
        write(QByteArray("README") + full, "#+DESCRIPTION: A tiny game\n");
        write(QByteArray("LICENSE") + empty, " \n");
        write(QByteArray("README") + empty, "#+DESCRIPTION:\n");
        RepoFacts expected;
        expected.license = u"A License"_s;
        expected.author = u"Copyright Somebody"_s;
        expected.summary = u"A tiny game"_s;
        EXPECT_EQ(facts(), expected);
    }
}

TEST_F(RepoFactsTest, ofAnOuterFolderOverrideThoseOfAnInnerOne)
{
    write("README.org", "#+DESCRIPTION: Outer\n");
    write("a/b/README.org", "#+DESCRIPTION: Inner\n");
    write("a/b/LICENSE", "Inner License\n");
    const auto read = facts("a/b");
    EXPECT_EQ(read.summary, u"Outer"_s);
    EXPECT_EQ(read.license, u"Inner License"_s);
}

TEST_F(RepoFactsTest, areReadUpToTheStopFolderAndNoFurther)
{
    m_root.write(u"LICENSE"_s, "Outside\n");
    write("LICENSE", "Inside\n");
    EXPECT_EQ(facts().license, u"Inside"_s);
    EXPECT_EQ(facts("a/..").license, u"Inside"_s);
    EXPECT_EQ(facts("a/").license, u"Inside"_s);
}

TEST_F(RepoFactsTest, areReadInAtMostSixFolders)
{
    write("LICENSE", "Too far\n");
    write("1/LICENSE", "Sixth\n");
    m_root.makeFolder(u"Game/1/2/3/4/5/6"_s);
    const auto read = [this](const char* folder) {
        return ProjectInspector::facts(m_root.path(QString::fromUtf8(folder)), u"/nowhere"_s);
    };
    EXPECT_EQ(read("Game/1/2/3/4/5/6").license, u"Sixth"_s);
    EXPECT_EQ(read("Game/1/2/3/4/5").license, u"Too far"_s);
}

TEST_F(RepoFactsTest, areReadNoFurtherThanTheRootFolder)
{
    const auto atRoot = ProjectInspector::facts(u"/"_s, u"/"_s);
    EXPECT_EQ(ProjectInspector::facts(u"/"_s, u"/nowhere"_s), atRoot);
    EXPECT_EQ(ProjectInspector::facts(u"/nowhere/x"_s, QString()), atRoot);
}

} // namespace
