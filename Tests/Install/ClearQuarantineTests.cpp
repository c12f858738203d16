// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"
#include "Platform/LinuxPlatform.h"

#include <utility>

namespace {

/// A system whose tool for clearing the mark is a program of the test's.
class PlatformWithQuarantine final : public LinuxPlatform
{
public:
    explicit PlatformWithQuarantine(QString tool)
        : m_tool(std::move(tool))
    {
    }
    [[nodiscard]] std::optional<ToolCommand>
    clearQuarantineCommand(const QString& folder) const override
    {
        return ToolCommand{m_tool, {u"-dr"_s, folder}};
    }

private:
    const QString m_tool;
};

class ClearQuarantineTest : public EngineManagerTest
{
protected:
    /// Installs the engine on a system whose tool for that is a script.
    Outcome<QString> installWith(const QByteArray& script)
    {
        return installWithTool(home.writeScript(u"tool"_s, script));
    }
    Outcome<QString> installWithTool(const QString& tool)
    {
        serveEngine(engineArchive());
        const PlatformWithQuarantine platform(tool);
        return eventually(engine.install(downloader, log(), stop.get_token(), platform));
    }
};

const auto removing =
    u"Removing macOS's \"downloaded from the internet\" flag from the engine. It was just verified "
    "against Godot's published checksum, and without this step macOS would block it from opening."_s;
const auto harmless = u"xattr finished with code 1 (usually harmless if the flag was not set)."_s;

} // namespace

TEST_F(ClearQuarantineTest, happensAfterTheUnpackingAndBeforeTheSwap)
{
    installOldEngine();

    const auto outcome =
        installWith("echo \"$1\"; cd \"$2\"; ls; ls ../" + EngineManager::version().toUtf8());

    EXPECT_TRUE(outcome.value);
    const QStringList all = lines();
    EXPECT_EQ(all.sliced(all.indexOf(removing)),
              (QStringList{removing, u"-dr"_s, programName(), u"sub"_s, u"old godot"_s}));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ClearQuarantineTest, saysNothingMoreWhenTheFlagIsCleared)
{
    EXPECT_TRUE(installWith("exit 0").value);

    EXPECT_EQ(lines().last(), removing);
}

TEST_F(ClearQuarantineTest, neverFailsAnInstallation)
{
    EXPECT_TRUE(installWith("exit 1").value);

    EXPECT_EQ(lines().last(), harmless);
}

TEST_F(ClearQuarantineTest, keepsTheOldEngineWhenItsToolCannotBeStarted)
{
    installOldEngine();

    EXPECT_TRUE(installWithTool(home.path(u"no tool"_s)).isPlatformError);

    expectOldEngine();
}

TEST_F(ClearQuarantineTest, canBeCancelledBeforeTheSwap)
{
    installOldEngine();
    stopAtLine(harmless);

    EXPECT_TRUE(installWith("exit 1").isCancelled);

    clearLeftovers();
    expectOldEngine();
}

TEST_F(ClearQuarantineTest, isFollowedByASwapThatKeepsTheOldEngineWhenItFails)
{
    // The tool itself takes away what is to be moved.
    installOldEngine();

    const auto outcome = installWith("mv \"$2\" \"$2.taken\" && rm -r \"$2.taken\"");

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(u"Could not write “"_s)) << outcome.sentence;
    expectOldEngine();
}
