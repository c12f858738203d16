// SPDX-License-Identifier: MIT
// How controls answer to the pointer and the keyboard, and the window in unusual surroundings.

#include "Views/Picture.h"

#include "Shell/WidgetDesktop.h"

#include <QComboBox>
#include <QIcon>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

class ControlGallery : public Picture, public testing::WithParamInterface<Theme>
{
protected:
    ControlGallery()
        : Picture(GetParam())
    {
    }

    /// Everything in `visited` that Tab moves the focus to.
    QList<QImage> focusStops(QWidget& visited)
    {
        QList<QImage> stops;
        auto* const first = visited.focusWidget();
        do {
            QTest::keyClick(visited.focusWidget(), Qt::Key_Tab);
            EXPECT_TRUE(visited.focusWidget()->isVisible());
            stops.append(detail(*visited.focusWidget()));
        } while (visited.focusWidget() != first);
        return stops;
    }

    /// A button as it is, under the pointer, pressed, and disabled.
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

    /// The window with its sheet and alert where they are.
    QImage everything()
    {
        settle();
        auto picture = window().grab().toImage();
        QPainter painter(&picture);
        for (auto* const front : window().findChildren<QDialog*>())
            painter.drawPixmap(front->pos() - window().pos(), front->grab());
        return picture;
    }
};

TEST_P(ControlGallery, showsWhereTheFocusIsInTheWindow)
{
    showAllBlocks();
    showAll();
    save(focusStops(window()), "focus-window");
}

TEST_P(ControlGallery, showsWhereTheFocusIsInTheSheets)
{
    auto stops = focusStops(settings());
    settings().reject();
    settle();
    save(stops + focusStops(about()), "focus-sheets");
}

TEST_P(ControlGallery, showsHowButtonsAnswer)
{
    showAll();
    auto all = looks(play()) + looks(*button(u"About"));
    for (const auto* const title : {u"Fullscreen", u"Remove everything", u"Done"})
        all += looks(*button(settings(), title));
    save(all, "looks");
}

TEST_P(ControlGallery, showsTheListOfResolutions)
{
    auto& list = only<QComboBox>(settings());
    list.showPopup();
    save(*QApplication::activePopupWidget(), "resolutions");
    list.hidePopup();
}

TEST_P(ControlGallery, showsTheMenuOfTheLog)
{
    model().log().append(u"a line"_s);
    model().setShowLog(true);
    auto& log = logBox().edit();
    ASSERT_TRUE(waitUntil([&] { return log.lineCount() == 1; }));
    const std::unique_ptr<QMenu> menu(log.createStandardContextMenu());
    menu->popup(QPoint(0, 0));
    QTest::keyClick(menu.get(), Qt::Key_Down);
    save(*menu, "menu");
}

TEST_P(ControlGallery, asksOverTheSheet)
{
    QApplication::setWindowIcon(QIcon(QStringLiteral(ICON_FILE)));
    enter(Phase::Kind::ready);
    showAll();
    settings();
    QTimer::singleShot(0, &window(), [this] {
        auto& alert = only<QMessageBox>();
        save({everything()}, "alert");
        alert.reject();
    });
    EXPECT_FALSE(WidgetDesktop().confirm(
        u"Remove everything?"_s,
        u"This deletes the downloaded game and engine and frees 312.4 MB. Your save "
        u"files in Godot's folder are not touched."_s,
        u"Remove"_s));
    QApplication::setWindowIcon({});
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
    installGame();
    home.write(root(u"Game/README.org"_s),
               "#+DESCRIPTION: A platform game in which a small explorer swings through caves on a "
               "grappling hook. It shows how such a game is built: its scenes, its camera, its "
               "physics and its sounds, each with a chapter of its own in the manual that comes "
               "with it.\n");
    home.write(root(u"Game/LICENSE"_s),
               "Creative Commons Attribution-ShareAlike 4.0 International\n"
               "Copyright The Brindlework Demonstration Projects and their contributors\n");
    const WebHostScope host(u"http://127.0.0.1:1/a-folder-with-a-name-that-is-longer-than-the-"
                            "window-is-wide/and-another-one-inside-of-it"_s);
    model().play();
    waitForPhase(Phase::Kind::needs);
    waitForFlow();
    showAll();
    save(window(), "long-texts");
}

TEST_P(ControlGallery, takesALargerFont)
{
    enlargeFont();
    showDownload();
    showAll();
    save(window(), "larger-font");
    save(settings(), "larger-font-settings");
    settings().reject();
    settle();
    save(about(), "larger-font-about");
}

TEST_P(ControlGallery, takesTwiceTheFontSize)
{
    enlargeFont(2);
    home.write(root(u"more"_s), QByteArray(312'400'000, 'x'));
    showAllBlocks();
    showAll();
    save(window(), "double-font");
    settings();
    ASSERT_TRUE(waitUntil([this] { return model().installedSize() == u"312.4 MB"_s; }));
    save(settings(), "double-font-settings");
    settings().reject();
    settle();
    save(about(), "double-font-about");
}

TEST_P(ControlGallery, takesASheetHigherThanTheScreen)
{
    enlargeFont(2.5);
    window().windowHandle()->setScreen(QGuiApplication::screens().constLast());
    settle();
    save(window(), "small-screen-start");
    save(about(), "small-screen-about");
}

TEST_P(ControlGallery, takesHighContrast)
{
    QApplication::setPalette(GetParam() == Theme::dark ? Palettes::highContrastDark()
                                                       : Palettes::highContrastLight());
    showAllBlocks();
    showAll();
    save(window(), "high-contrast");
    auto stops = focusStops(window());
    stops += focusStops(settings());
    save(settings(), "high-contrast-settings");
    settings().reject();
    settle();
    save(about(), "high-contrast-about");
    about().reject();
    settle();
    save(stops, "high-contrast-focus");
    showDownload();
    showAll();
    save(window(), "high-contrast-download");
}

INSTANTIATE_TEST_SUITE_P(Themes, ControlGallery, testing::Values(Theme::light, Theme::dark));

} // namespace
