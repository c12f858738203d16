// SPDX-License-Identifier: MIT
#include "Install/ClearQuarantine.h"

#include "EngineManagerTest.h"

namespace {

class ClearQuarantineTest : public EngineManagerTest
{
protected:
    /// Installs the engine on a system whose tool for that is a script.
    Outcome<QString> installWith(const QByteArray& script)
    {
        serve(engineArchive());
        return installWithTool(home.writeScript(QStringLiteral("tool"), script));
    }
    Outcome<QString> installWithTool(const QString& tool)
    {
        return eventually(
            engine.install(downloader, log(), stop.get_token(), Durations().transferStall,
                           [tool](const QString& folder) {
                               return ToolCommand{tool, {QStringLiteral("-dr"), folder}};
                           }));
    }
};

const auto removing = QStringLiteral(
    "Removing macOS's \"downloaded from the internet\" flag from the engine. It was just verified "
    "against Godot's published checksum, and without this step macOS would block it from opening.");
const auto harmless =
    QStringLiteral("xattr finished with code 1 (usually harmless if the flag was not set).");

} // namespace

TEST_F(ClearQuarantineTest, carriesOnWhenTheQuarantineFlagCannotBeCleared)
{
    const auto tool = home.writeScript(QStringLiteral("tool"), "echo \"$1\"; exit 1");

    const auto outcome = eventually(
        clearQuarantine({tool, {QStringLiteral("some folder")}}, log(), stop.get_token()));

    EXPECT_TRUE(outcome.value);
    EXPECT_EQ(lines(), (QStringList{removing, QStringLiteral("some folder"), harmless}));
}

TEST_F(ClearQuarantineTest, saysNothingMoreWhenTheQuarantineFlagIsCleared)
{
    const auto tool = home.writeScript(QStringLiteral("tool"), "exit 0");

    EXPECT_TRUE(eventually(clearQuarantine({tool, {}}, log(), stop.get_token())).value);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(ClearQuarantineTest, failsWhenTheQuarantineToolCannotBeStarted)
{
    const auto missing = home.path(QStringLiteral("no tool"));

    EXPECT_TRUE(
        eventually(clearQuarantine({missing, {}}, log(), stop.get_token())).isPlatformError);
}

TEST_F(ClearQuarantineTest, happensAfterTheUnpackingAndBeforeTheSwap)
{
    installOldEngine();

    const auto outcome = installWith("echo \"$1\"; cd \"$2\"; ls; ls ../3.5.3-stable");

    EXPECT_TRUE(outcome.value);
    const QStringList all = lines();
    EXPECT_EQ(
        all.sliced(all.indexOf(removing)),
        (QStringList{removing, QStringLiteral("-dr"), QStringLiteral("Godot_v3.5.3-stable_x11.64"),
                     QStringLiteral("sub"), QStringLiteral("old godot")}));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ClearQuarantineTest, neverFailsAnInstallation)
{
    EXPECT_TRUE(installWith("exit 1").value);

    EXPECT_EQ(lines().last(), harmless);
}

TEST_F(ClearQuarantineTest, keepsTheOldEngineWhenItsToolCannotBeStarted)
{
    installOldEngine();
    serve(engineArchive());

    EXPECT_TRUE(installWithTool(home.path(QStringLiteral("no tool"))).isPlatformError);

    expectOldEngine();
}

TEST_F(ClearQuarantineTest, isTheLastMomentToCancelBeforeTheSwap)
{
    installOldEngine();
    stopAtLine(harmless);

    EXPECT_TRUE(installWith("exit 1").isCancelled);

    expectOldEngine();
}

TEST_F(ClearQuarantineTest, isFollowedByASwapThatKeepsTheOldEngineWhenItFails)
{
    // The tool itself takes away what is to be moved.
    installOldEngine();

    const auto outcome = installWith("mv \"$2\" \"$2.taken\" && rm -r \"$2.taken\"");

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(QStringLiteral("Could not write “")))
        << outcome.sentence.toStdString();
    expectOldEngine();
}
