// SPDX-License-Identifier: MIT
// Every state of the window and of its sheets.

#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Views/Picture.h"

#include "Views/AboutView.h"
#include "Views/SettingsView.h"

#include <QTest>
#include <QThreadPool>

#include <ostream>
#include <string>
#include <tuple>

namespace {

struct State
{
    const char* name;
    void (*enter)(AppModel& model);
};

void PrintTo(const State& state, std::ostream* stream)
{
    *stream << state.name;
}

void downloading(AppModel& model)
{
    AppModelAccess::setPhase(model, Phase::downloading());
    AppModelAccess::setStep(
        model, QStringLiteral("Step 2 of 4 \u00b7 Downloading the Godot engine (3.5.3-stable)"));
}

void failing(AppModel& model)
{
    for (auto i = 0; i < 30; ++i)
        model.log().append(QStringLiteral("Downloading the checksum list, attempt %1").arg(i));
    AppModelAccess::fail(
        model, QStringLiteral("The engine's archive is damaged: its SHA-512 checksum is not the "
                              "one that the engine's makers published. Nothing was installed."));
}

const State states[]{
    {"not-downloaded", [](AppModel&) {}},
    {"downloading-unknown", downloading},
    {"downloading",
     [](AppModel& model) {
         downloading(model);
         AppModelAccess::applyProgress(model, {7'300'000, 70'100'000, 2'400'000});
     }},
    {"setting-up",
     [](AppModel& model) {
         AppModelAccess::setPhase(model, Phase::settingUp());
         AppModelAccess::setStep(
             model,
             QStringLiteral("Step 3 of 4 \u00b7 First-time setup, this can take a minute or more"));
     }},
    {"ready", [](AppModel& model) { AppModelAccess::setPhase(model, Phase::ready()); }},
    {"starting",
     [](AppModel& model) {
         AppModelAccess::setStillStarting(model, true);
         AppModelAccess::setPhase(model, Phase::playing());
     }},
    {"playing", [](AppModel& model) { AppModelAccess::setPhase(model, Phase::playing()); }},
    {"failed", failing},
    {"failed-with-log",
     [](AppModel& model) {
         failing(model);
         model.setShowLog(true);
     }},
    {"empty-log", [](AppModel& model) { model.setShowLog(true); }},
};

class Gallery : public Picture, public testing::WithParamInterface<std::tuple<Theme, State>>
{
protected:
    Gallery()
        : Picture(std::get<Theme>(GetParam()))
    {
    }

    static const State& state() { return std::get<State>(GetParam()); }
};

TEST_P(Gallery, showsTheState)
{
    state().enter(model());
    auto& log = model().log();
    ASSERT_TRUE(waitUntil([&] { return log.lines() == log.newest(2000); }));
    showAll();
    save(window(), state().name);
}

INSTANTIATE_TEST_SUITE_P(States, Gallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(states)));

using SheetGallery = Gallery;

TEST_P(SheetGallery, showsTheSheets)
{
    home.makeFolder(QStringLiteral("data/godot/app_userdata/Tether"));
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    // What was measured when the sheet opened, in a folder that is empty, comes first.
    QThreadPool::globalInstance()->waitForDone();
    settle();
    state().enter(model());
    save(settings, (std::string("settings-") + state().name).c_str());
    only<SettingsView>().reject();
    settle();
    save(open<AboutView>(QStringLiteral("About")), "about");
}

const State sheetStates[]{
    states[0],
    {"installed",
     [](AppModel& model) {
         AppModelAccess::setInstalledSize(model, QStringLiteral("312.4 MB"));
         ProjectInfo info;
         info.name = QStringLiteral("Tether");
         AppModelAccess::setInfo(model, info);
         AppModelAccess::setPhase(model, Phase::ready());
     }},
    {"busy",
     [](AppModel& model) {
         AppModelAccess::setInstalledSize(model, QStringLiteral("312.4 MB"));
         AppModelAccess::setPhase(model, Phase::playing());
     }},
};

INSTANTIATE_TEST_SUITE_P(Sheets, SheetGallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(sheetStates)));

} // namespace
