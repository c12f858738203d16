// SPDX-License-Identifier: MIT
// Every state of the window and of its sheets.

#include "Views/Picture.h"

#include <string>
#include <tuple>

namespace {

const std::string states[]{
    "not-downloaded",  "downloading-unknown",
    "downloading",     "setting-up",
    "ready",           "starting",
    "playing",         "failed",
    "failed-with-log", "empty-log",
};

class Gallery : public Picture, public testing::WithParamInterface<std::tuple<Theme, std::string>>
{
protected:
    Gallery()
        : Picture(std::get<Theme>(GetParam()), std::get<std::string>(GetParam()) == "starting"
                                                   ? std::chrono::seconds{10}
                                                   : std::chrono::seconds{0})
    {
    }

    /// What a download that is not the published one leads to.
    void fail()
    {
        for (auto i = 0; i < 30; ++i)
            model().log().append(u"Downloading the checksum list, attempt %1"_s.arg(i));
        installGame();
        serveEngine("the published one");
        server.on(enginePath(), HttpServer::reply(200, "another"));
        model().play();
        waitForPhase(Phase::Kind::needs);
        waitForFlow();
    }

    void enterState()
    {
        using enum Phase::Kind;
        if (state == "downloading-unknown")
            enter(downloading);
        else if (state == "downloading")
            showDownload();
        else if (state == "setting-up")
            enter(settingUp);
        else if (state == "ready" || state == "installed")
            enter(ready);
        else if (state == "starting" || state == "playing" || state == "busy")
            enter(playing);
        else if (state.starts_with("failed"))
            fail();
        model().setShowLog(state.ends_with("log"));
    }

    const std::string state = std::get<std::string>(GetParam());
};

TEST_P(Gallery, showsTheState)
{
    enterState();
    auto& log = model().log();
    ASSERT_TRUE(waitUntil([&] { return log.lines() == log.newest(); }));
    showAll();
    save(window(), state);
}

INSTANTIATE_TEST_SUITE_P(States, Gallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(states)));

using SheetGallery = Gallery;

TEST_P(SheetGallery, showsTheSheets)
{
    home.makeFolder(u"data/godot/app_userdata/Tether"_s);
    enterState();
    if (state != "not-downloaded")
        home.write(root(u"more"_s), QByteArray(3'000'000, 'x'));
    settings();
    ASSERT_TRUE(waitUntil([this] {
        return model().installedSize() == (state == "not-downloaded" ? QString() : u"3 MB"_s);
    }));
    save(settings(), "settings-" + state);
    settings().reject();
    settle();
    save(about(), "about");
}

INSTANTIATE_TEST_SUITE_P(Sheets, SheetGallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::Values("not-downloaded", "installed", "busy")));

} // namespace
