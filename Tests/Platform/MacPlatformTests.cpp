// SPDX-License-Identifier: MIT
#include "Platform/MacPlatform.h"

#include "Support/EnvironmentScope.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

TEST(MacPlatform, keepsDataInTheLibraryOfTheHomeFolder)
{
    const EnvironmentScope home("HOME", "/Users/player");
    EXPECT_EQ(MacPlatform().applicationSupport(), u"/Users/player/Library/Application Support"_s);
    EXPECT_EQ(MacPlatform().configuration(), u"/Users/player/Library/Preferences"_s);
    EXPECT_EQ(MacPlatform().savesFolder(u"Tiny: Game"_s),
              u"/Users/player/Library/Application Support/Godot/app_userdata/Tiny: Game"_s);
}

TEST(MacPlatform, keepsTranslationsInTheBundlesResources)
{
    const auto folder =
        MacPlatform().translationsFolder(u"/a/Game.app/Contents/MacOS"_s, u"a-game"_s);
    EXPECT_EQ(QDir::cleanPath(folder), u"/a/Game.app/Contents/Resources/translations"_s);
}

TEST(MacPlatform, namesOneEngineArchiveForEveryProcessor)
{
    EXPECT_EQ(MacPlatform().engineArchiveSuffix(false), u"osx.universal.zip"_s);
    EXPECT_EQ(MacPlatform().engineArchiveSuffix(true), u"mono_osx.universal.zip"_s);
}

TEST(MacPlatform, unpacksAndClearsTheQuarantineWithTheSystemsTools)
{
    const auto unpack = MacPlatform().unpackCommand(u"/a b.zip"_s, u"/c d"_s);
    ASSERT_TRUE(unpack);
    EXPECT_EQ(unpack->program, u"/usr/bin/ditto"_s);
    EXPECT_EQ(unpack->arguments, (QStringList{u"-x"_s, u"-k"_s, u"/a b.zip"_s, u"/c d"_s}));
    const auto clear = MacPlatform().clearQuarantineCommand(u"/c d"_s);
    ASSERT_TRUE(clear);
    EXPECT_EQ(clear->program, u"/usr/bin/xattr"_s);
    EXPECT_EQ(clear->arguments, (QStringList{u"-dr"_s, u"com.apple.quarantine"_s, u"/c d"_s}));
}

class MacEngineProgram : public testing::Test
{
protected:
    void write(const char* relative) const { m_folder.write(QString::fromUtf8(relative)); }

    /// The found program, as seen from the engine folder; "none" when none was found.
    [[nodiscard]] QString found() const
    {
        const auto program = MacPlatform().findEngineProgram(m_folder.path());
        return program ? QDir(m_folder.path()).relativeFilePath(*program) : u"none"_s;
    }

    TestFolder m_folder;
};

TEST_F(MacEngineProgram, isTheOneNamedAfterTheEngine)
{
    write("Godot.app/Contents/MacOS/Aaa");
    write("Godot.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), u"Godot.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isTheFirstOneWhenNoneIsNamedAfterTheEngine)
{
    write("Some.app/Contents/MacOS/zzz");
    write("Some.app/Contents/MacOS/aaa");
    EXPECT_EQ(found(), u"Some.app/Contents/MacOS/aaa");
}

TEST_F(MacEngineProgram, isFoundInABundleBelowAFolder)
{
    write("some/folder/Godot_mono.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), u"some/folder/Godot_mono.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isNotSoughtInABundleWithinABundle)
{
    write("Outer.app/Contents/Helper.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), u"none");
    write("Other.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), u"Other.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isNotThereWithoutABundle)
{
    EXPECT_EQ(found(), u"none");
    write("Godot");
    write("Godot.APP/Contents/MacOS/Godot");
    EXPECT_EQ(found(), u"none");
    EXPECT_EQ(MacPlatform().findEngineProgram(m_folder.path(u"none"_s)), std::nullopt);
}

} // namespace
