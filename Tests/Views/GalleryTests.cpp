// SPDX-License-Identifier: MIT
// Every state of the window in light and dark, as pictures in the folder `gallery` of the build.
// The scale is the platform's: the program is run once for each.

#include "Support/AppModelAccess.h"
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/LauncherStyle.h"
#include "Views/SettingsView.h"

#include <QDir>
#include <QImage>
#include <QSet>

#include <ostream>
#include <string>
#include <tuple>

namespace {

enum class Theme { light, dark };

struct State
{
    const char* name;
    void (*enter)(AppModel& model);
};

void PrintTo(const State& state, std::ostream* stream)
{
    *stream << state.name;
}

void PrintTo(Theme theme, std::ostream* stream)
{
    *stream << (theme == Theme::dark ? "dark" : "light");
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

/// How many different colours a picture has.
qsizetype colorCount(const QImage& picture)
{
    QSet<QRgb> colors;
    for (auto y = 0; y < picture.height(); ++y) {
        for (auto x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return colors.size();
}

class Gallery : public ViewTest, public testing::WithParamInterface<std::tuple<Theme, State>>
{
protected:
    Gallery()
    {
        QApplication::setPalette(theme() == Theme::dark ? LauncherStyle::darkPalette()
                                                        : LauncherStyle::lightPalette());
    }

    ~Gallery() override { QApplication::setPalette(LauncherStyle::lightPalette()); }

    static Theme theme() { return std::get<Theme>(GetParam()); }
    static const State& state() { return std::get<State>(GetParam()); }

    /// Saves a picture of `widget` and checks that something is on it at the scale of the screen.
    static void save(QWidget& widget, const char* name)
    {
        settle();
        const auto picture = widget.grab().toImage();
        EXPECT_EQ(picture.size(), (QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize());
        EXPECT_GT(colorCount(picture), 30) << "next to nothing is drawn";
        const QDir folder(QStringLiteral(GALLERY_FOLDER));
        EXPECT_TRUE(folder.mkpath(QStringLiteral(".")));
        const auto file =
            QStringLiteral("%1-%2-%3x.png")
                .arg(QLatin1String(name),
                     theme() == Theme::dark ? QStringLiteral("dark") : QStringLiteral("light"))
                .arg(widget.devicePixelRatioF());
        EXPECT_TRUE(picture.save(folder.filePath(file)));
    }
};

TEST_P(Gallery, showsTheState)
{
    state().enter(model());
    settle();
    // As high as its content, so that nothing of it is left out.
    window().resize(window().width(), window().widget()->height());
    save(window(), state().name);
}

INSTANTIATE_TEST_SUITE_P(States, Gallery,
                         testing::Combine(testing::Values(Theme::light, Theme::dark),
                                          testing::ValuesIn(states)));

using SheetGallery = Gallery;

TEST_P(SheetGallery, showsTheSheets)
{
    state().enter(model());
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    state().enter(model());
    save(settings, (std::string("settings-") + state().name).c_str());
    only<SettingsView>().reject();
    settle();
    save(open<AboutView>(QStringLiteral("About")), "about");
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, SheetGallery,
    testing::Combine(testing::Values(Theme::light, Theme::dark),
                     testing::Values(states[0], State{"busy", [](AppModel& model) {
                                                          AppModelAccess::setInstalledSize(
                                                              model, QStringLiteral("312.4 MB"));
                                                          AppModelAccess::setPhase(
                                                              model, Phase::playing());
                                                      }})));

} // namespace
