// SPDX-License-Identifier: MIT
// Every state of the window and of its sheets.

#include "Views/Picture.h"

#include <ostream>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

struct State
{
    std::string name;
    void (*enter)(AppModel& model);
};

void PrintTo(const State& state, std::ostream* stream)
{
    *stream << state.name;
}

void downloading(AppModel& model)
{
    AppModelAccess::setPhase(model, Phase::downloading());
    AppModelAccess::setStep(model,
                            u"Step 2 of 4 \u00b7 Downloading the Godot engine (3.5.3-stable)"_s);
}

void failing(AppModel& model)
{
    for (auto i = 0; i < 30; ++i)
        model.log().append(u"Downloading the checksum list, attempt %1"_s.arg(i));
    AppModelAccess::fail(model, u"The engine's archive is damaged: its SHA-512 checksum is not the "
                                u"one that the engine's makers published. Nothing was "
                                u"installed."_s);
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
             model, u"Step 3 of 4 \u00b7 First-time setup, this can take a minute or more"_s);
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
        , state(std::get<State>(GetParam()))
    {
    }

    const State state;
};

TEST_P(Gallery, showsTheState)
{
    state.enter(model());
    auto& log = model().log();
    ASSERT_TRUE(waitUntil([&] { return log.lines() == log.newest(2000); }));
    showAll();
    save(window(), state.name);
}

INSTANTIATE_TEST_SUITE_P(States, Gallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(states)));

using SheetGallery = Gallery;

TEST_P(SheetGallery, showsTheSheets)
{
    home.makeFolder(u"data/godot/app_userdata/Tether"_s);
    settings();
    // The sheet has started to measure an empty folder.
    AppModelAccess::finishMeasuring();
    state.enter(model());
    save(settings(), "settings-" + state.name);
    settings().reject();
    settle();
    save(about(), "about");
}

const State sheetStates[]{
    states[0],
    {"installed",
     [](AppModel& model) {
         AppModelAccess::setInstalledSize(model, u"312.4 MB"_s);
         ProjectInfo info;
         info.name = u"Tether"_s;
         AppModelAccess::setInfo(model, info);
         AppModelAccess::setPhase(model, Phase::ready());
     }},
    {"busy",
     [](AppModel& model) {
         AppModelAccess::setInstalledSize(model, u"312.4 MB"_s);
         AppModelAccess::setPhase(model, Phase::playing());
     }},
};

INSTANTIATE_TEST_SUITE_P(Sheets, SheetGallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(sheetStates)));

} // namespace
