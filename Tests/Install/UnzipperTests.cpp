// SPDX-License-Identifier: MIT
#include "Install/Unzipper.h"

#include "Platform/LinuxPlatform.h"
#include "Support/CollectedLines.h"
#include "Support/Eventually.h"
#include "Support/TestFolder.h"
#include "Support/ZipWriter.h"
#include "System/InputFile.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A system that unpacks with a program of the test's.
class PlatformWithTool final : public LinuxPlatform
{
public:
    explicit PlatformWithTool(QString tool)
        : m_tool(std::move(tool))
    {
    }
    [[nodiscard]] std::optional<ToolCommand>
    unpackCommand(const QString& archive, const QString& destination) const override
    {
        return ToolCommand{m_tool, {archive, destination}};
    }

private:
    const QString m_tool;
};

class UnzipperTest : public testing::Test
{
protected:
    [[nodiscard]] QStringList lines() const { return output.lines(); }
    Outcome<bool> unzip(const QByteArray& bytes, const Platform& platform = hostPlatform())
    {
        folder.write(u"the archive.zip"_s, bytes);
        return outcomeOf([&] {
            Unzipper::unzip(InputFile(archive), destination, onLines, stop.get_token(), platform);
        });
    }
    Outcome<bool> unzipWith(const QByteArray& script)
    {
        return unzip({}, PlatformWithTool(folder.writeScript(u"some tool"_s, script)));
    }

    TestFolder folder;
    QString archive = folder.path(u"the archive.zip"_s);
    QString destination = folder.path(u"new parents/of the/folder"_s);
    std::stop_source stop;
    CollectedLines output;
    LogCallback onLines = output.callback();
};

} // namespace

TEST_F(UnzipperTest, createsTheDestinationWithItsParents)
{
    EXPECT_TRUE(unzip(ZipWriter().addFile("a b/c", "x").archive()).value);

    EXPECT_EQ(folder.read(u"new parents/of the/folder/a b/c"_s), "x");
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_TRUE(folder.exists(u"the archive.zip"_s));
}

TEST_F(UnzipperTest, failsWithStatus1ForADamagedArchive)
{
    const auto outcome = unzip("damaged");

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"Unzipping failed (ditto exit code 1)."_s);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(UnzipperTest, saysInTheLogWhyAnArchiveIsRefused)
{
    EXPECT_TRUE(unzip(ZipWriter().addFile("../x").archive()).isAppError);

    EXPECT_EQ(lines(), QStringList{u"The archive entry “../x” would lie outside the folder."_s});
}

TEST_F(UnzipperTest, reportsADestinationThatCannotBeCreated)
{
    folder.write(u"new parents"_s, "a file");

    const auto outcome = unzipWith("touch \"$0.ran\"");

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_FALSE(folder.exists(u"some tool.ran"_s));
}

TEST_F(UnzipperTest, passesPathsWithSpacesToTheToolWhole)
{
    EXPECT_TRUE(unzipWith("echo \"$#\"; echo \"$1\"; echo \"$2\"").value);

    EXPECT_EQ(lines(), (QStringList{u"2"_s, archive, destination}));
}

TEST_F(UnzipperTest, namesTheStatusOfTheToolThatFails)
{
    const auto outcome = unzipWith("echo trouble >&2; exit 37");

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"Unzipping failed (ditto exit code 37)."_s);
    EXPECT_EQ(lines(), QStringList{u"trouble"_s});
}

TEST_F(UnzipperTest, reportsAToolThatCannotBeStarted)
{
    const PlatformWithTool platform(folder.path(u"no tool"_s));

    EXPECT_TRUE(unzip({}, platform).isPlatformError);
}

TEST_F(UnzipperTest, endsTheToolWhenCancelled)
{
    onLines = [this](const QString&) { stop.request_stop(); };

    EXPECT_TRUE(unzipWith("echo started; exec sleep 1000").isCancelled);
}

TEST_F(UnzipperTest, endsWithCancelledBeforeItUnpacks)
{
    stop.request_stop();

    EXPECT_TRUE(unzip(ZipWriter().addFile("a").archive()).isCancelled);
    EXPECT_TRUE(folder.names(u"new parents/of the/folder"_s).isEmpty());
}
