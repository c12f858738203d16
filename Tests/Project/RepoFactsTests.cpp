// SPDX-License-Identifier: MIT
#include "Project/ProjectInspector.h"
#include "Support/Listing.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

class RepoFactsTest : public testing::Test
{
protected:
    void write(const char* relative, const QByteArray& text) const
    {
        m_root.write(QStringLiteral("Game/") + QString::fromUtf8(relative), text);
    }

    /// The facts for a folder of the game, with the game folder as the one to stop at.
    [[nodiscard]] RepoFacts facts(const char* folder = ".") const
    {
        return ProjectInspector::facts(
            m_root.path(QStringLiteral("Game/") + QString::fromUtf8(folder)),
            m_root.path(QStringLiteral("Game")));
    }

    TestFolder m_root;
};

TEST_F(RepoFactsTest, areTheDefaultsWithoutAnyFile)
{
    m_root.makeFolder(QStringLiteral("Game"));
    EXPECT_EQ(facts(), RepoFacts());
    EXPECT_EQ(facts("missing"), RepoFacts());
}

TEST_F(RepoFactsTest, takeTheSummaryFromAKeywordInAnyCaseWithoutBlanks)
{
    write("README.org", "* Title\n#+description:   A tiny game  \n");
    EXPECT_EQ(facts().summary, QStringLiteral("A tiny game"));
}

TEST_F(RepoFactsTest, ignoreAnIndentedKeyword)
{
    write("README.org", " #+DESCRIPTION: A tiny game\n");
    EXPECT_EQ(facts(), RepoFacts());
}

TEST_F(RepoFactsTest, ignoreAKeywordWithNothingAfterIt)
{
    write("README.org", "#+DESCRIPTION: First\n#+DESCRIPTION: \t\n#+DESCRIPTION:");
    EXPECT_EQ(facts().summary, QStringLiteral("First"));
}

TEST_F(RepoFactsTest, takeTheLastOfSeveralSummaries)
{
    write("readme", "#+DESCRIPTION: First\n#+Description:Second\n");
    EXPECT_EQ(facts().summary, QStringLiteral("Second"));
}

TEST_F(RepoFactsTest, takeNameAndCopyrightFromALicenceFile)
{
    write("LICENSE", "\n \t\n  The Zero License \n\n text\n\tCopyright (c) 2019 Somebody \n"
                     "Copyright (c) 2020 Somebody else\n");
    RepoFacts expected;
    expected.license = QStringLiteral("The Zero License");
    expected.author = QStringLiteral("Copyright (c) 2019 Somebody");
    EXPECT_EQ(facts(), expected);
}

TEST_F(RepoFactsTest, takeOnlyTheNameFromALicenceFileWithoutACopyrightLine)
{
    write("license.txt", "Some License\nNo copyright line starts with that word.\n");
    RepoFacts expected;
    expected.license = QStringLiteral("Some License");
    EXPECT_EQ(facts(), expected);
}

TEST_F(RepoFactsTest, takeNothingFromAnEmptyOrUnreadableLicenceFile)
{
    write("LICENSE", "\n \n");
    write("a/LICENSE.md", "Latin \xe9\n");
    m_root.makeFolder(QStringLiteral("Game/a/b/LICENSE"));
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
    const auto names = listing(m_root.path(QStringLiteral("Game")));
    const auto lastOf = [&names](QLatin1String kind) {
        return names.filter(kind).last().sliced(kind.size() + 1);
    };
    const auto license = lastOf(QLatin1String("license"));
    EXPECT_EQ(facts().license, QStringLiteral("License ") + license);
    EXPECT_EQ(facts().author, QStringLiteral("Copyright ") + license);
    EXPECT_EQ(facts().summary, QStringLiteral("Summary ") + lastOf(QLatin1String("readme")));
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
        expected.license = QStringLiteral("A License");
        expected.author = QStringLiteral("Copyright Somebody");
        expected.summary = QStringLiteral("A tiny game");
        EXPECT_EQ(facts(), expected);
    }
}

TEST_F(RepoFactsTest, ofAnOuterFolderOverrideThoseOfAnInnerOne)
{
    write("README.org", "#+DESCRIPTION: Outer\n");
    write("a/b/README.org", "#+DESCRIPTION: Inner\n");
    write("a/b/LICENSE", "Inner License\n");
    const auto read = facts("a/b");
    EXPECT_EQ(read.summary, QStringLiteral("Outer"));
    EXPECT_EQ(read.license, QStringLiteral("Inner License"));
}

TEST_F(RepoFactsTest, areReadUpToTheStopFolderAndNoFurther)
{
    m_root.write(QStringLiteral("LICENSE"), "Outside\n");
    write("LICENSE", "Inside\n");
    EXPECT_EQ(facts().license, QStringLiteral("Inside"));
    EXPECT_EQ(facts("a/..").license, QStringLiteral("Inside"));
    EXPECT_EQ(facts("a/").license, QStringLiteral("Inside"));
}

TEST_F(RepoFactsTest, areReadInAtMostSixFolders)
{
    write("LICENSE", "Too far\n");
    write("1/LICENSE", "Sixth\n");
    m_root.makeFolder(QStringLiteral("Game/1/2/3/4/5/6"));
    const auto read = [this](const char* folder) {
        return ProjectInspector::facts(m_root.path(QString::fromUtf8(folder)),
                                       QStringLiteral("/nowhere"));
    };
    EXPECT_EQ(read("Game/1/2/3/4/5/6").license, QStringLiteral("Sixth"));
    EXPECT_EQ(read("Game/1/2/3/4/5").license, QStringLiteral("Too far"));
}

TEST_F(RepoFactsTest, areReadNoFurtherThanTheRootFolder)
{
    const auto atRoot = ProjectInspector::facts(QStringLiteral("/"), QStringLiteral("/"));
    EXPECT_EQ(ProjectInspector::facts(QStringLiteral("/"), QStringLiteral("/nowhere")), atRoot);
    EXPECT_EQ(ProjectInspector::facts(QStringLiteral("/nowhere/x"), QString()), atRoot);
}

} // namespace
