// SPDX-License-Identifier: MIT
#include "Install/RepoDownloader.h"

#include "Platform/FileTree.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/UnchangeableScope.h"
#include "Support/ZipWriter.h"

namespace {

const auto archivePath =
    QStringLiteral("/brindlework-demos/tetherwalk/archive/refs/heads/master.zip");
const auto downloading = QStringLiteral("Downloading the game source from GitHub (branch master)…");
const auto unpacking = QStringLiteral("Unpacking the game with ditto…");

QByteArray gameArchive()
{
    return ZipWriter()
        .addFile("tetherwalk-master/README.org", "readme")
        .addFile("tetherwalk-master/project/project.godot", "config_version=4")
        .archive();
}

class RepoDownloaderTest : public InstallTest
{
protected:
    void serve(const QByteArray& archive)
    {
        server.on(archivePath, HttpServer::replyWithoutLength(archive));
    }
    Outcome<QString> fetch()
    {
        return eventually(RepoDownloader::fetch(downloader, log(), stop.get_token()));
    }
    Outcome<QString> fetchWith(const RepoDownloader::Swap& swap)
    {
        return eventually(RepoDownloader::fetchWith(swap, downloader, log(), stop.get_token()));
    }
    void installOldGame() const { home.write(root(QStringLiteral("Game/old/project.godot"))); }
    void expectOldGame() const
    {
        EXPECT_EQ(home.names(root(QStringLiteral("Game"))), QStringList{QStringLiteral("old")});
        EXPECT_EQ(leftovers(), QStringList());
    }
};

} // namespace

TEST_F(RepoDownloaderTest, namesTheBranchArchive)
{
    EXPECT_EQ(RepoDownloader::zipURL(), server.url(archivePath));
}

TEST_F(RepoDownloaderTest, refusesAHostThatMakesNoUrl)
{
    const WebHostScope host(QStringLiteral("http://[nowhere"));

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("Invalid game URL."));
    EXPECT_EQ(lines(), QStringList{downloading});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, installsTheGameAndGivesItsProject)
{
    serve(gameArchive());

    const auto outcome = fetch();

    const auto project = home.path(root(QStringLiteral("Game/tetherwalk-master/project")));
    EXPECT_EQ(outcome.value, project);
    EXPECT_EQ(lines(), (QStringList{downloading, unpacking,
                                    QStringLiteral("Game ready at %1").arg(project)}));
    EXPECT_EQ(home.read(root(QStringLiteral("Game/tetherwalk-master/README.org"))), "readme");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, replacesTheOldGameWithEverythingInIt)
{
    installOldGame();
    home.write(root(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    serve(gameArchive());

    EXPECT_TRUE(fetch().value);

    EXPECT_EQ(home.names(root(QStringLiteral("Game"))),
              QStringList{QStringLiteral("tetherwalk-master")});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheServerHasNone)
{
    installOldGame();

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("The server answered with HTTP 404 for %1.")
                                    .arg(server.url(archivePath).toString()));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheArchiveHasNoProject)
{
    installOldGame();
    serve(ZipWriter().addFile("tetherwalk-master/README.org").archive());

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("The downloaded game does not contain a project.godot file."));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheArchiveWasCutShort)
{
    // Without a length, the end of the connection is the only end that the transfer knows.
    installOldGame();
    const auto archive = gameArchive();
    serve(archive.chopped(10));

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("Unzipping failed (ditto exit code 1)."));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheArchiveIsHostile)
{
    installOldGame();
    serve(ZipWriter().addFile("game/project.godot").addFile("../../evil").archive());

    EXPECT_EQ(fetch().sentence, QStringLiteral("Unzipping failed (ditto exit code 1)."));

    EXPECT_TRUE(lines().contains(
        QStringLiteral("The archive entry “../../evil” would lie outside the folder.")));
    EXPECT_FALSE(home.exists(QStringLiteral("data/evil")));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsAnOldGameThatCannotBeReplaced)
{
    installOldGame();
    serve(gameArchive());
    const auto game = home.path(root(QStringLiteral("Game")));
    const UnchangeableScope unchangeable(game);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no folder unchangeable.";

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(
        outcome.sentence.endsWith(QStringLiteral(" and “%1”: Operation not permitted.").arg(game)))
        << outcome.sentence.toStdString();
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheNewOneCannotBeMoved)
{
    installOldGame();
    serve(gameArchive());
    const auto failing = [](const QString&, const QString&, const QString&,
                            const std::stop_token&) {
        throw PlatformError(QStringLiteral("Could not move it."));
    };

    const auto outcome = fetchWith(failing);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_EQ(outcome.sentence, QStringLiteral("Could not move it."));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, reportsAProjectThatIsGoneAfterTheMoveAndLeavesTheNewGame)
{
    installOldGame();
    serve(gameArchive());
    const auto losing = [](const QString& target, const QString& staging, const QString& aside,
                           const std::stop_token& token) {
        FileTree::replace(target, staging, aside, token);
        FileTree::remove(target + QStringLiteral("/tetherwalk-master/project"));
    };

    const auto outcome = fetchWith(losing);

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("The game folder was unpacked but project.godot was not found."));
    EXPECT_EQ(home.names(root(QStringLiteral("Game"))),
              QStringList{QStringLiteral("tetherwalk-master")});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, reportsATemporaryFolderThatCannotBeMade)
{
    const EnvironmentScope temporary("TMPDIR", home.write(QStringLiteral("a file")).toUtf8());

    EXPECT_TRUE(fetch().isPlatformError);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(RepoDownloaderTest, reportsARootThatCannotBeMade)
{
    home.write(QStringLiteral("data/Cavernyx Platformer"), "a file");
    serve(gameArchive());

    EXPECT_TRUE(fetch().isPlatformError);
    EXPECT_EQ(home.names(QStringLiteral("temporary")), QStringList());
}

TEST_F(RepoDownloaderTest, touchesNothingWhenCancelledDuringTheDownload)
{
    server.on(archivePath, HttpServer::silence());
    auto task = RepoDownloader::fetch(downloader, log(), stop.get_token());
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    EXPECT_FALSE(home.exists(root({})));
    EXPECT_EQ(home.names(QStringLiteral("temporary")), QStringList());
}

TEST_F(RepoDownloaderTest, endsWithCancelledWhenTheDownloaderIsCancelled)
{
    server.on(archivePath, HttpServer::silence());
    auto task = RepoDownloader::fetch(downloader, log(), stop.get_token());
    ASSERT_TRUE(server.waitForRequests(1));

    downloader->cancel();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenCancelledBeforeOrDuringTheUnpacking)
{
    installOldGame();
    serve(gameArchive());
    stopAtLine(unpacking);

    EXPECT_TRUE(fetch().isCancelled);

    expectOldGame();
    EXPECT_EQ(lines().last(), unpacking);
}

TEST_F(RepoDownloaderTest, asksNoServerWhenCancelledBeforehand)
{
    stop.request_stop();

    EXPECT_TRUE(fetch().isCancelled);
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_EQ(leftovers(), QStringList());
}
