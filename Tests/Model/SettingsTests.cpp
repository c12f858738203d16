// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include <QFile>
#include <QSignalSpy>

#include <sys/stat.h>

namespace {

class Settings : public ModelTest
{
protected:
    /// What is stored.
    [[nodiscard]] QByteArray stored() const { return home.read(file); }

    const QString folder = u"config/Cavernyx Platformer"_s;
    const QString file = folder + u"/Cavernyx Platformer.conf"_s;
};

TEST_F(Settings, startWindowedAndWithTheGamesOwnSize)
{
    startModel();
    EXPECT_FALSE(model().fullscreen());
    EXPECT_EQ(model().resolution(), ResolutionChoice::gameDefault);
    EXPECT_FALSE(home.exists(folder));
}

TEST_F(Settings, surviveARestart)
{
    startModel().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    startModel();
    EXPECT_TRUE(model().fullscreen());
    EXPECT_EQ(model().resolution(), ResolutionChoice::r1080);
}

TEST_F(Settings, areStoredUnderTheirOwnKeysForThePlayerAlone)
{
    startModel().setFullscreen(true);
    EXPECT_EQ(stored(), "[General]\nfullscreen=true\n");
    model().setResolution(ResolutionChoice::r720);
    model().setFullscreen(false);
    EXPECT_EQ(stored(), "[General]\nresolution=1280x720\nfullscreen=false\n");
    EXPECT_EQ(home.names(folder), QStringList{u"Cavernyx Platformer.conf"_s});
    EXPECT_EQ(QFile::permissions(home.path(file)) & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(Settings, leaveTheRestOfTheFileAsItIs)
{
    const QByteArray before = "; by hand\nFullScreen=true\n[general]\n";
    const QByteArray after = "\nlanguage=\"a, b\"\n[Window]\nfullscreen=false\nsize=\xFF";
    home.write(file, before + "fullscreen = 0" + after);
    EXPECT_FALSE(startModel().fullscreen());
    model().setFullscreen(true);
    EXPECT_EQ(stored(), before + "fullscreen=true" + after);
    EXPECT_TRUE(startModel().fullscreen());
    model().setResolution(ResolutionChoice::r900);
    EXPECT_EQ(startModel().resolution(), ResolutionChoice::r900);
}

TEST_F(Settings, areReadWhereTheyStandBeforeAnySection)
{
    home.write(file, "fullscreen=true\nresolution=1280x720\n[Window]\nsize=1\n");
    startModel().setResolution(ResolutionChoice::r1440);
    EXPECT_EQ(stored(), "fullscreen=true\nresolution=2560x1440\n[Window]\nsize=1\n");
    startModel();
    EXPECT_TRUE(model().fullscreen());
    EXPECT_EQ(model().resolution(), ResolutionChoice::r1440);
}

TEST_F(Settings, takeAnUnknownStoredResolutionForTheGamesOwn)
{
    for (const auto* text : {"800x600", "1280X720", "\"1280x720 \"", "@ByteArray(\\x1)"}) {
        home.write(file, QByteArray("[General]\nresolution=") + text + '\n');
        EXPECT_EQ(startModel().resolution(), ResolutionChoice::gameDefault) << text;
    }
}

TEST_F(Settings, areStoredButNotAnnouncedWhenTheyStayWhatTheyAre)
{
    startModel();
    const QSignalSpy changed(&model(), &AppModel::changed);
    model().setResolution(ResolutionChoice::gameDefault);
    EXPECT_EQ(stored(), "[General]\nresolution=\n");
    model().setFullscreen(false);
    EXPECT_EQ(stored(), "[General]\nfullscreen=false\nresolution=\n");
    EXPECT_EQ(changed.size(), 0);
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r900);
    EXPECT_EQ(changed.size(), 2);
}

TEST_F(Settings, replaceWhatAKilledLauncherLeftBeside)
{
    home.write(file + u".new"_s, "[Gene");
    startModel().setFullscreen(true);
    EXPECT_EQ(stored(), "[General]\nfullscreen=true\n");
    EXPECT_EQ(home.names(folder), QStringList{u"Cavernyx Platformer.conf"_s});
}

TEST_F(Settings, followALinkToTheirFile)
{
    const auto target = home.write(u"elsewhere/settings"_s, "[General]\nfullscreen=true\n");
    home.makeFolder(folder);
    ASSERT_TRUE(QFile::link(target, home.path(file)));
    EXPECT_TRUE(startModel().fullscreen());
    model().setFullscreen(false);
    EXPECT_EQ(home.read(u"elsewhere/settings"_s), "[General]\nfullscreen=false\n");
    EXPECT_EQ(QFile::symLinkTarget(home.path(file)), target);
}

TEST_F(Settings, holdUntilTheEndWhenTheyCannotBeStored)
{
    home.makeFolder(folder);
    const auto path = home.path(file);
    // A pipe, which to open would wait for a writer.
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    startModel().setFullscreen(true);
    EXPECT_TRUE(model().fullscreen());
    EXPECT_EQ(logged(), QStringList{u"Could not change “%1”: It is not a file."_s.arg(path)});
    EXPECT_EQ(home.names(folder), QStringList{u"Cavernyx Platformer.conf"_s});
    EXPECT_FALSE(startModel().fullscreen());
}

} // namespace
