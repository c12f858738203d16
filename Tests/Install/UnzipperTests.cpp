// SPDX-License-Identifier: MIT
#include "Install/Unzipper.h"

#include "Support/CollectedLines.h"
#include "Support/Eventually.h"
#include "Support/TestFolder.h"
#include "Support/ZipWriter.h"

#include <gtest/gtest.h>

namespace {

class UnzipperTest : public testing::Test
{
protected:
    [[nodiscard]] QStringList lines() const { return output.lines(); }
    Outcome<bool> unzip(const QByteArray& bytes)
    {
        folder.write(QStringLiteral("the archive.zip"), bytes);
        return eventually(
            Unzipper::unzip(archive, destination, output.callback(), stop.get_token()));
    }
    Outcome<bool> unzipWith(const QByteArray& script)
    {
        folder.write(QStringLiteral("the archive.zip"));
        const auto tool = folder.writeScript(QStringLiteral("some tool"), script);
        return eventually(Unzipper::unzipWith(ToolCommand{tool, {archive, destination}}, archive,
                                              destination, output.callback(), stop.get_token()));
    }

    TestFolder folder;
    QString archive = folder.path(QStringLiteral("the archive.zip"));
    QString destination = folder.path(QStringLiteral("new parents/of the/folder"));
    std::stop_source stop;
    CollectedLines output;
};

} // namespace

TEST_F(UnzipperTest, createsTheDestinationWithItsParents)
{
    EXPECT_TRUE(unzip(ZipWriter().addFile("a b/c", "x").archive()).value);

    EXPECT_EQ(folder.read(QStringLiteral("new parents/of the/folder/a b/c")), "x");
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_TRUE(folder.exists(QStringLiteral("the archive.zip")));
}

TEST_F(UnzipperTest, failsWithStatus1ForADamagedArchive)
{
    const auto outcome = unzip("damaged");

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("Unzipping failed (ditto exit code 1)."));
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(UnzipperTest, saysInTheLogWhyAnArchiveIsRefused)
{
    EXPECT_TRUE(unzip(ZipWriter().addFile("../x").archive()).isAppError);

    EXPECT_EQ(lines(), QStringList{QStringLiteral(
                           "The archive entry “../x” would lie outside the folder.")});
}

TEST_F(UnzipperTest, reportsADestinationThatCannotBeCreated)
{
    folder.write(QStringLiteral("new parents"), "a file");

    const auto outcome = unzipWith("touch \"$0.ran\"");

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_FALSE(folder.exists(QStringLiteral("some tool.ran")));
}

TEST_F(UnzipperTest, passesPathsWithSpacesToTheToolWhole)
{
    EXPECT_TRUE(unzipWith("echo \"$#\"; echo \"$1\"; echo \"$2\"").value);

    EXPECT_EQ(lines(), (QStringList{QStringLiteral("2"), archive, destination}));
}

TEST_F(UnzipperTest, namesTheStatusOfTheToolThatFails)
{
    const auto outcome = unzipWith("echo trouble >&2; exit 37");

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("Unzipping failed (ditto exit code 37)."));
    EXPECT_EQ(lines(), QStringList{QStringLiteral("trouble")});
}

TEST_F(UnzipperTest, reportsAToolThatCannotBeStarted)
{
    const ToolCommand missing{folder.path(QStringLiteral("no tool")), {}};

    const auto outcome = eventually(
        Unzipper::unzipWith(missing, archive, destination, output.callback(), stop.get_token()));

    EXPECT_TRUE(outcome.isPlatformError);
}

TEST_F(UnzipperTest, endsTheToolWhenCancelled)
{
    const auto tool = folder.writeScript(QStringLiteral("tool"), "echo started; exec sleep 1000");
    auto task = Unzipper::unzipWith(ToolCommand{tool, {}}, archive, destination, output.callback(),
                                    stop.get_token());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !lines().isEmpty(); }, 20'000));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
}

TEST_F(UnzipperTest, endsWithCancelledBeforeItUnpacks)
{
    stop.request_stop();

    EXPECT_TRUE(unzip(ZipWriter().addFile("a").archive()).isCancelled);
    EXPECT_TRUE(folder.names(QStringLiteral("new parents/of the/folder")).isEmpty());
}
