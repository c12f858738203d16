// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include <QSettings>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class Settings : public ModelTest
{
};

TEST_F(Settings, startWindowedAndWithTheGamesOwnSize)
{
    startModel();
    EXPECT_FALSE(model().fullscreen());
    EXPECT_EQ(model().resolution(), ResolutionChoice::gameDefault);
}

TEST_F(Settings, surviveARestart)
{
    startModel().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    startModel();
    EXPECT_TRUE(model().fullscreen());
    EXPECT_EQ(model().resolution(), ResolutionChoice::r1080);
    EXPECT_EQ(QSettings().value(u"resolution"_s).toString(), u"1920x1080");
}

TEST_F(Settings, areStoredUnderTheirOwnKeys)
{
    startModel().setFullscreen(true);
    EXPECT_TRUE(QSettings().value(u"fullscreen"_s).toBool());
    QSettings().remove(u"fullscreen"_s);
    EXPECT_FALSE(startModel().fullscreen());
}

TEST_F(Settings, takeAnUnknownStoredResolutionForTheGamesOwn)
{
    for (const auto& stored :
         {u"800x600"_s, u"1280X720"_s, u"1280x720 "_s, u"@ByteArray(\\x1)"_s}) {
        QSettings().setValue(u"resolution"_s, stored);
        EXPECT_EQ(startModel().resolution(), ResolutionChoice::gameDefault) << stored.toStdString();
    }
}

TEST_F(Settings, storeTheGamesOwnSizeAsTheEmptyText)
{
    startModel().setResolution(ResolutionChoice::r720);
    model().setResolution(ResolutionChoice::gameDefault);
    EXPECT_TRUE(QSettings().contains(u"resolution"_s));
    EXPECT_EQ(QSettings().value(u"resolution"_s).toString(), QString());
}

TEST_F(Settings, areNeitherStoredNorAnnouncedWhenNothingChanges)
{
    startModel();
    const QSignalSpy changed(&model(), &AppModel::changed);
    model().setFullscreen(false);
    model().setResolution(ResolutionChoice::gameDefault);
    EXPECT_EQ(changed.size(), 0);
    EXPECT_TRUE(QSettings().allKeys().isEmpty()) << "a later default would not be followed";
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r900);
    EXPECT_EQ(changed.size(), 2);
}

} // namespace
