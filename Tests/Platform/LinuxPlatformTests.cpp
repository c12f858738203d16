// SPDX-License-Identifier: MIT
#include "Platform/LinuxPlatform.h"

#include "Support/EnvironmentScope.h"
#include "Support/TestFolder.h"
#include "System/Errors.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

TEST(LinuxPlatform, keepsDataAndSettingsInTheUsersFolders)
{
    const EnvironmentScope home("HOME", "/home/player");
    const EnvironmentScope data("XDG_DATA_HOME", std::nullopt);
    const EnvironmentScope settings("XDG_CONFIG_HOME", std::nullopt);
    EXPECT_EQ(LinuxPlatform().applicationSupport(), u"/home/player/.local/share"_s);
    EXPECT_EQ(LinuxPlatform().configuration(), u"/home/player/.config"_s);
}

TEST(LinuxPlatform, keepsDataAndSettingsWhereTheEnvironmentSaysSo)
{
    const EnvironmentScope data("XDG_DATA_HOME", "/data/größe/");
    const EnvironmentScope settings("XDG_CONFIG_HOME", "/settings/größe/");
    EXPECT_EQ(LinuxPlatform().applicationSupport(), u"/data/größe"_s);
    EXPECT_EQ(LinuxPlatform().configuration(), u"/settings/größe"_s);
}

TEST(LinuxPlatform, ignoresADataFolderThatIsRelativeOrEmpty)
{
    const EnvironmentScope home("HOME", "/home/player");
    for (const auto* value : {"relative/data", "", "~/data", ":/data"}) {
        const EnvironmentScope data("XDG_DATA_HOME", value);
        EXPECT_EQ(LinuxPlatform().applicationSupport(), u"/home/player/.local/share"_s);
    }
}

TEST(LinuxPlatform, refusesAFolderWhoseNameIsNotUtf8)
{
    const auto refusal = [] {
        try {
            return LinuxPlatform().applicationSupport();
        } catch (const PlatformError& error) {
            return error.message();
        }
    };
    const auto sentence =
        u"Could not use the folder “/gr\uFFFD\uFFFDe”, because its name is not UTF-8."_s;
    const EnvironmentScope home("HOME", "/gr\xF6\xDF"
                                        "e");
    {
        const EnvironmentScope data("XDG_DATA_HOME", std::nullopt);
        EXPECT_EQ(refusal(), sentence);
    }
    const EnvironmentScope data("XDG_DATA_HOME", "/gr\xF6\xDF"
                                                 "e");
    EXPECT_EQ(refusal(), sentence);
}

TEST(LinuxPlatform, namesTheEngineArchiveOfEachProcessorAndEdition)
{
    const auto suffix = [](bool mono, const char* processor) {
        return LinuxPlatform(QString::fromUtf8(processor)).engineArchiveSuffix(mono);
    };
    EXPECT_EQ(suffix(false, "x86_64"), u"x11.64.zip");
    EXPECT_EQ(suffix(true, "x86_64"), u"mono_x11_64.zip");
    EXPECT_EQ(suffix(false, "i386"), u"x11.32.zip");
    EXPECT_EQ(suffix(true, "i386"), u"mono_x11_32.zip");
}

TEST(LinuxPlatform, saysThatThereIsNoEngineForAnotherProcessor)
{
    try {
        std::ignore = LinuxPlatform(u"arm64"_s).engineArchiveSuffix(false);
        FAIL() << "There is one.";
    } catch (const AppError& error) {
        EXPECT_TRUE(error.message().contains(u"(arm64)")) << error.what();
    }
}

class LinuxEngineProgram : public testing::Test
{
protected:
    void write(const char* relative) const { m_folder.write(QString::fromUtf8(relative)); }

    /// The found program, as seen from the engine folder; "none" when none was found.
    [[nodiscard]] QString found() const
    {
        const auto program = LinuxPlatform().findEngineProgram(m_folder.path());
        return program ? QDir(m_folder.path()).relativeFilePath(*program) : u"none"_s;
    }

    TestFolder m_folder;
};

TEST_F(LinuxEngineProgram, isFoundInBothEditions)
{
    write("Godot_mono_x11_64/GodotSharp/Api/Release/GodotSharp.dll");
    write("Godot_mono_x11_64/Godot_mono_x11.64");
    EXPECT_EQ(found(), u"Godot_mono_x11_64/Godot_mono_x11.64");
    write("Godot_x11.64");
    EXPECT_EQ(found(), u"Godot_x11.64");
}

TEST_F(LinuxEngineProgram, isTheFirstInPlainStringOrder)
{
    write("b/godot");
    write("b/Godot");
    EXPECT_EQ(found(), u"b/Godot");
    write("a/zgodot");
    EXPECT_EQ(found(), u"a/zgodot");
}

TEST_F(LinuxEngineProgram, isRecognisedInAnyCaseAndPlaceOfItsName)
{
    write("my-GoDoT-build");
    EXPECT_EQ(found(), u"my-GoDoT-build");
}

TEST_F(LinuxEngineProgram, isARegularFile)
{
    m_folder.makeFolder(u"godot"_s);
    const TestFolder elsewhere;
    const auto outside = elsewhere.write(u"file"_s);
    ASSERT_TRUE(QFile::link(outside, m_folder.path(u"Godot_link"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.path(), m_folder.path(u"folder"_s)));
    write("readme.txt");
    EXPECT_EQ(found(), u"none");
    write("godot/godot");
    EXPECT_EQ(found(), u"godot/godot");
}

TEST_F(LinuxEngineProgram, isNotThereWithoutTheFolder)
{
    EXPECT_EQ(LinuxPlatform().findEngineProgram(m_folder.path(u"none"_s)), std::nullopt);
}

TEST_F(LinuxEngineProgram, isFoundWithoutWriting)
{
    write("godot");
    const auto path = m_folder.path(u"godot"_s);
    const auto before = QFile::permissions(path);
    EXPECT_EQ(found(), u"godot");
    EXPECT_EQ(QFile::permissions(path), before);
}

TEST(LinuxPlatform, unpacksWithoutATool)
{
    EXPECT_EQ(LinuxPlatform().unpackCommand(u"/a.zip"_s, u"/b"_s), std::nullopt);
    EXPECT_EQ(LinuxPlatform().clearQuarantineCommand(u"/b"_s), std::nullopt);
}

TEST(LinuxPlatform, namesTheSavesFolderAsTheEngineDoes)
{
    const EnvironmentScope data("XDG_DATA_HOME", "/data");
    const auto saves = [](const char* name) {
        const auto folder = LinuxPlatform().savesFolder(QString::fromUtf8(name));
        const auto parent = u"/data/godot/app_userdata/"_s;
        EXPECT_TRUE(folder.startsWith(parent)) << folder;
        return folder.sliced(parent.size());
    };
    EXPECT_EQ(saves("Tiny Größe!"), u"Tiny Größe!");
    EXPECT_EQ(saves("a:b*c?d\"e<f>g|h/i\\j"), u"a-b-c-d-e-f-g-h-i-j");
    EXPECT_EQ(saves(" \tspaced out "), u"spaced out");
    EXPECT_EQ(saves("../up"), u"..-up");
}

} // namespace
