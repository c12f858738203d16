// SPDX-License-Identifier: MIT
#include "Install/RepoDownloader.h"

#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/UnchangeableScope.h"
#include "Support/ZipWriter.h"

namespace {

const auto downloading = u"Downloading the game source from GitHub (branch master)…"_s;
const auto unpacking = u"Unpacking the game with ditto…"_s;

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
        server.on(gamePath(), HttpServer::replyWithoutLength(archive));
    }
    Outcome<QString> fetch()
    {
        return eventually(RepoDownloader::fetch(downloader, log(), stop.get_token()));
    }
    void installOldGame() const { home.write(root(u"Game/old/project.godot"_s)); }
    void expectOldGame() const
    {
        EXPECT_EQ(home.names(root(u"Game"_s)), QStringList{u"old"_s});
        EXPECT_EQ(leftovers(), QStringList());
    }
};

} // namespace

TEST_F(RepoDownloaderTest, namesTheBranchArchive)
{
    EXPECT_EQ(RepoDownloader::zipURL(),
              server.url(u"/brindlework-demos/tetherwalk/archive/refs/heads/master.zip"_s));
}

TEST_F(RepoDownloaderTest, refusesAHostThatMakesNoUrl)
{
    const WebHostScope host(u"http://[nowhere"_s);

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"Invalid game URL."_s);
    EXPECT_EQ(lines(), QStringList{downloading});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, installsTheGameAndReturnsItsProject)
{
    serve(gameArchive());

    const auto outcome = fetch();

    const auto project = root(u"Game/tetherwalk-master/project"_s);
    EXPECT_EQ(outcome.value, project);
    EXPECT_EQ(lines(), (QStringList{downloading, unpacking, u"Game ready at %1"_s.arg(project)}));
    EXPECT_EQ(home.read(root(u"Game/tetherwalk-master/README.org"_s)), "readme");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, replacesTheOldGameWithEverythingInIt)
{
    installOldGame();
    writeMarker();
    serve(gameArchive());

    EXPECT_TRUE(fetch().value);

    EXPECT_EQ(home.names(root(u"Game"_s)), QStringList{u"tetherwalk-master"_s});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheServerHasNone)
{
    installOldGame();

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"The server answered with HTTP 404 for %1."_s.arg(
                                    RepoDownloader::zipURL().toString()));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheArchiveHasNoProject)
{
    installOldGame();
    serve(ZipWriter().addFile("tetherwalk-master/README.org").archive());

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"The downloaded game does not contain a project.godot file."_s);
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
    EXPECT_EQ(outcome.sentence, u"Unzipping failed (ditto exit code 1)."_s);
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenTheArchiveIsHostile)
{
    installOldGame();
    serve(ZipWriter().addFile("game/project.godot").addFile("../../evil").archive());

    EXPECT_EQ(fetch().sentence, u"Unzipping failed (ditto exit code 1)."_s);

    EXPECT_TRUE(
        lines().contains(u"The archive entry “../../evil” would lie outside the folder."_s));
    EXPECT_FALSE(home.exists(u"data/evil"_s));
    expectOldGame();
}

TEST_F(RepoDownloaderTest, keepsAnOldGameThatCannotBeReplaced)
{
    installOldGame();
    serve(gameArchive());
    const auto game = root(u"Game"_s);
    const UnchangeableScope unchangeable(game);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no folder unchangeable.";

    const auto outcome = fetch();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.endsWith(u" and “%1”: Operation not permitted."_s.arg(game)))
        << outcome.sentence;
    expectOldGame();
}

TEST_F(RepoDownloaderTest, reportsATemporaryFolderThatCannotBeMade)
{
    const EnvironmentScope temporary("TMPDIR", home.write(u"a file"_s).toUtf8());

    EXPECT_TRUE(fetch().isPlatformError);
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(RepoDownloaderTest, reportsARootThatCannotBeMade)
{
    home.write(root(), "a file");
    serve(gameArchive());

    EXPECT_TRUE(fetch().isPlatformError);
    EXPECT_EQ(home.names(u"temporary"_s), QStringList());
}

TEST_F(RepoDownloaderTest, touchesNothingWhenCancelledDuringTheDownload)
{
    server.on(gamePath(), HttpServer::silence());
    const auto fetching = RepoDownloader::fetch(downloader, log(), stop.get_token());
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(fetching).isCancelled);
    EXPECT_FALSE(exists({}));
    EXPECT_EQ(home.names(u"temporary"_s), QStringList());
}

TEST_F(RepoDownloaderTest, keepsTheOldGameWhenCancelledBeforeOrDuringTheUnpacking)
{
    installOldGame();
    serve(gameArchive());
    stopAtLine(unpacking);

    EXPECT_TRUE(fetch().isCancelled);

    clearLeftovers();
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
