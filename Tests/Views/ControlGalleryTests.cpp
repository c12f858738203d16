// SPDX-License-Identifier: MIT
// What answers to the pointer and to the keyboard, and the window in unusual surroundings.

#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Views/Picture.h"

#include "Views/AboutView.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/PlayButton.h"
#include "Views/SettingsView.h"

#include <QComboBox>
#include <QMenu>
#include <QTest>

namespace {

class ControlGallery : public Picture, public testing::WithParamInterface<Theme>
{
protected:
    ControlGallery()
        : Picture(GetParam())
    {
    }

    /// The stops of the keyboard's focus in a window, from where it is until it comes around.
    QList<QImage> focusStops(QWidget& stopping)
    {
        QList<QImage> stops;
        auto* const first = stopping.focusWidget();
        do {
            QTest::keyClick(stopping.focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(stopping.focusWidget()->isVisible());
            stops.append(detail(*stopping.focusWidget()));
        } while (stopping.focusWidget() != first);
        return stops;
    }

    /// A button as it is, under the pointer, held down, and disabled.
    static QList<QImage> looks(QAbstractButton& button)
    {
        QList<QImage> looks{detail(button)};
        button.setAttribute(Qt::WA_UnderMouse);
        looks.append(detail(button));
        button.setDown(true);
        looks.append(detail(button));
        button.setDown(false);
        button.setAttribute(Qt::WA_UnderMouse, false);
        button.setEnabled(false);
        looks.append(detail(button));
        return looks;
    }
};

TEST_P(ControlGallery, showsWhereTheFocusIsInTheWindow)
{
    AppModelAccess::fail(model(), QStringLiteral("The disk is full."));
    model().setShowLog(true);
    showAll();
    save(focusStops(window()), "focus-window");
}

TEST_P(ControlGallery, showsWhereTheFocusIsInTheSheets)
{
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    auto stops = focusStops(settings);
    settings.reject();
    settle();
    save(stops + focusStops(open<AboutView>(QStringLiteral("About"))), "focus-sheets");
}

TEST_P(ControlGallery, showsHowButtonsAnswer)
{
    showAll();
    auto all = looks(only<PlayButton>()) + looks(*button(QStringLiteral("About")));
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    for (const auto& title : {"Fullscreen", "Remove everything", "Done"})
        all += looks(*button(settings, QLatin1String(title)));
    save(all, "looks");
}

TEST_P(ControlGallery, showsTheListOfResolutions)
{
    auto& list = only<QComboBox>(open<SettingsView>(QStringLiteral("Settings\u2026")));
    list.showPopup();
    save(*QApplication::activePopupWidget(), "resolutions");
    list.hidePopup();
}

TEST_P(ControlGallery, showsTheMenuOfTheLog)
{
    model().log().append(QStringLiteral("a line"));
    model().setShowLog(true);
    auto& log = only<LongTextEdit>(only<LogView>());
    ASSERT_TRUE(waitUntil([&] { return log.lineCount() == 1; }));
    const std::unique_ptr<QMenu> menu(log.createStandardContextMenu());
    menu->popup(QPoint(0, 0));
    QTest::keyClick(menu.get(), Qt::Key_Down);
    save(*menu, "menu");
}

TEST_P(ControlGallery, scrollsOnASmallScreen)
{
    model().setShowLog(true);
    window().setMinimumSize(620, 640);
    window().resize(620, 640);
    save(window(), "small-screen");
}

TEST_P(ControlGallery, takesLongTexts)
{
    AppModelAccess::setFacts(
        model(),
        {.summary = QStringLiteral("A platform game in which a small explorer swings through caves "
                                   "on a grappling hook. It shows how such a game is built: its "
                                   "scenes, its camera, its physics and its sounds, each with a "
                                   "chapter of its own in the manual that comes with it."),
         .license = QStringLiteral("Creative Commons Attribution-ShareAlike 4.0 International"),
         .author =
             QStringLiteral("The Brindlework Demonstration Projects and their contributors")});
    AppModelAccess::fail(
        model(), QStringLiteral("The file \u201c/home/player/.local/share/cavernyx/"
                                "a-folder-with-a-name-that-is-longer-than-the-window-is-wide/"
                                "and-another-one-inside-of-it\u201d could not be written: No space "
                                "left on device."));
    showAll();
    save(window(), "long-texts");
}

TEST_P(ControlGallery, takesALargerFont)
{
    const auto font = QApplication::font();
    auto larger = font;
    larger.setPointSizeF(font.pointSizeF() * 4 / 3);
    QApplication::setFont(larger);
    AppModelAccess::setPhase(model(), Phase::downloading());
    AppModelAccess::setStep(
        model(), QStringLiteral("Step 2 of 4 \u00b7 Downloading the Godot engine (3.5.3-stable)"));
    AppModelAccess::applyProgress(model(), {7'300'000, 70'100'000, 2'400'000});
    showAll();
    save(window(), "larger-font");
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    save(settings, "larger-font-settings");
    settings.reject();
    settle();
    save(open<AboutView>(QStringLiteral("About")), "larger-font-about");
    QApplication::setFont(font);
}

INSTANTIATE_TEST_SUITE_P(Themes, ControlGallery, testing::Values(Theme::light, Theme::dark));

} // namespace
