// SPDX-License-Identifier: MIT
#include "Platform/MacPlatform.h"

#include "Support/EnvironmentScope.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

TEST(MacPlatform, keepsDataInTheLibraryOfTheHomeFolder)
{
    const EnvironmentScope home("HOME", "/Users/player");
    EXPECT_EQ(MacPlatform::applicationSupport(),
              QStringLiteral("/Users/player/Library/Application Support"));
    EXPECT_EQ(
        MacPlatform::savesFolder(QStringLiteral("Tiny: Game")),
        QStringLiteral("/Users/player/Library/Application Support/Godot/app_userdata/Tiny: Game"));
}

TEST(MacPlatform, namesOneEngineArchiveForEveryProcessor)
{
    for (const auto* processor : {"x86_64", "arm64"}) {
        const auto name = QString::fromUtf8(processor);
        EXPECT_EQ(MacPlatform::engineArchiveSuffix(false, name),
                  QStringLiteral("osx.universal.zip"));
        EXPECT_EQ(MacPlatform::engineArchiveSuffix(true, name),
                  QStringLiteral("mono_osx.universal.zip"));
    }
}

TEST(MacPlatform, unpacksAndClearsTheQuarantineWithTheSystemsTools)
{
    const auto unpack =
        MacPlatform::unpackCommand(QStringLiteral("/a b.zip"), QStringLiteral("/c d"));
    ASSERT_TRUE(unpack);
    EXPECT_EQ(unpack->program, QStringLiteral("/usr/bin/ditto"));
    EXPECT_EQ(unpack->arguments, (QStringList{QStringLiteral("-x"), QStringLiteral("-k"),
                                              QStringLiteral("/a b.zip"), QStringLiteral("/c d")}));
    const auto clear = MacPlatform::clearQuarantineCommand(QStringLiteral("/c d"));
    ASSERT_TRUE(clear);
    EXPECT_EQ(clear->program, QStringLiteral("/usr/bin/xattr"));
    EXPECT_EQ(clear->arguments,
              (QStringList{QStringLiteral("-dr"), QStringLiteral("com.apple.quarantine"),
                           QStringLiteral("/c d")}));
}

class MacEngineProgram : public testing::Test
{
protected:
    void write(const char* relative) const { m_folder.write(QString::fromUtf8(relative)); }

    /// The found program, as seen from the engine folder; "none" when none was found.
    [[nodiscard]] std::string found() const
    {
        const auto program = MacPlatform::findEngineProgram(m_folder.path());
        return program ? QDir(m_folder.path()).relativeFilePath(*program).toStdString() : "none";
    }

    TestFolder m_folder;
};

TEST_F(MacEngineProgram, isTheOneNamedAfterTheEngine)
{
    write("Godot.app/Contents/MacOS/Aaa");
    write("Godot.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), "Godot.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isTheFirstOneWhenNoneIsNamedAfterTheEngine)
{
    write("Some.app/Contents/MacOS/zzz");
    write("Some.app/Contents/MacOS/aaa");
    EXPECT_EQ(found(), "Some.app/Contents/MacOS/aaa");
}

TEST_F(MacEngineProgram, isFoundInABundleBelowAFolder)
{
    write("some/folder/Godot_mono.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), "some/folder/Godot_mono.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isNotSoughtInABundleWithinABundle)
{
    write("Outer.app/Contents/Helper.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), "none");
    write("Other.app/Contents/MacOS/Godot");
    EXPECT_EQ(found(), "Other.app/Contents/MacOS/Godot");
}

TEST_F(MacEngineProgram, isNotThereWithoutABundle)
{
    EXPECT_EQ(found(), "none");
    write("Godot");
    write("Godot.APP/Contents/MacOS/Godot");
    EXPECT_EQ(found(), "none");
    EXPECT_EQ(MacPlatform::findEngineProgram(m_folder.path(QStringLiteral("none"))), std::nullopt);
}

} // namespace
