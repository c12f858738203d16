// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/LauncherStyle.h"
#include "Views/LinkLabel.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QLayout>
#include <QPointer>
#include <QTest>

namespace {

/// Takes the place of the player's web browser.
class Browser final : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    Q_INVOKABLE void open(const QUrl& address) { opened.append(address); }

    QList<QUrl> opened;
};

class AboutViewTest : public ViewTest
{
protected:
    AboutView& sheet()
    {
        auto* const open = window().findChild<AboutView*>();
        return open ? *open : this->open<AboutView>(QStringLiteral("About"));
    }
};

TEST_F(AboutViewTest, is440WideWithItsTextsInOrder)
{
    EXPECT_EQ(sheet().width(), 440);
    EXPECT_EQ(sheet().layout()->spacing(), 10);
    auto bottom = 0;
    for (const auto& text :
         {QStringLiteral("About"),
          QStringLiteral("The game \"Snaglet!\" is made by Quennet and the Brindlework team, 2019, "
                         "and is released under the MIT License. The game belongs to its author; "
                         "this app is only a launcher that downloads it."),
          QStringLiteral("Based on brindlework-demos/tetherwalk, MIT License."),
          QStringLiteral("The Godot engine is free software under the MIT License "
                         "(godotengine.org). It is downloaded from the official godotengine/godot "
                         "releases and checked against the published SHA-512 checksum."),
          QStringLiteral("Nothing is sent anywhere except the two downloads (the game from GitHub "
                         "and the engine from GitHub releases).")}) {
        auto* const found = label(sheet(), text);
        ASSERT_TRUE(found) << text.toStdString();
        EXPECT_GT(place(*found).top(), bottom);
        EXPECT_GE(found->height(), found->heightForWidth(found->width())) << "nothing is cut";
        bottom = place(*found).bottom();
    }
}

TEST_F(AboutViewTest, showsTheAddressItselfAsALink)
{
    const auto address = QStringLiteral("https://github.com/brindlework-demos/tetherwalk");
    auto* const link = label(sheet(), QStringLiteral("<a href=\"%1\">%1</a>").arg(address));
    ASSERT_TRUE(link);
    EXPECT_EQ(link->accessibleName(), address);
    EXPECT_TRUE(link->openExternalLinks());
    EXPECT_TRUE(link->textInteractionFlags() & Qt::LinksAccessibleByKeyboard);
}

TEST_F(AboutViewTest, closesWithReturnAlsoFromTheLink)
{
    const QPointer<AboutView> open(&sheet());
    auto& link = only<LinkLabel>(*open);
    link.setFocus();
    QTest::keyClick(&link, Qt::Key_Return);
    settle();
    EXPECT_FALSE(open);
}

TEST_F(AboutViewTest, opensTheLinkWithTheSpaceBar)
{
    auto& link = only<LinkLabel>(sheet());
    Browser browser;
    link.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&link, Qt::Key_Space);
    EXPECT_EQ(browser.opened,
              QList<QUrl>{QUrl(QStringLiteral("https://github.com/brindlework-demos/tetherwalk"))});
}

TEST_F(AboutViewTest, opensTheLinkWithAClick)
{
    auto& link = only<LinkLabel>(sheet());
    Browser browser;
    QTest::mouseClick(&link, Qt::LeftButton, {}, QPoint(link.width() / 4, link.height() / 2));
    EXPECT_EQ(browser.opened,
              QList<QUrl>{QUrl(QStringLiteral("https://github.com/brindlework-demos/tetherwalk"))});
}

TEST_F(AboutViewTest, opensTheLinkForAssistiveTechnology)
{
    auto& link = *QAccessible::queryAccessibleInterface(&only<LinkLabel>(sheet()));
    Browser browser;
    ASSERT_TRUE(link.actionInterface());
    link.actionInterface()->doAction(link.actionInterface()->actionNames().constFirst());
    EXPECT_EQ(browser.opened.size(), 1);
}

TEST_F(AboutViewTest, putsTheLinkBetweenTheGamesLineAndTheEngines)
{
    const auto link = place(only<LinkLabel>(sheet()));
    const auto* const above =
        label(sheet(), QStringLiteral("Based on brindlework-demos/tetherwalk, MIT License."));
    EXPECT_EQ(link.top() - place(*above).bottom() - 1, 10);
    EXPECT_EQ(link.left(), 20);
}

TEST_F(AboutViewTest, showsTheLinkInTheLinkColorOfTheMoment)
{
    auto& link = only<LinkLabel>(sheet());
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette(),
                                LauncherStyle::lightPalette()}) {
        QApplication::setPalette(palette);
        settle();
        const auto picture = link.grab().toImage();
        auto found = 0;
        for (auto x = 0; x < picture.width(); ++x) {
            for (auto y = 0; y < picture.height(); ++y)
                found += picture.pixel(x, y) == palette.color(QPalette::Link).rgb() ? 1 : 0;
        }
        EXPECT_GT(found, 20);
    }
}

TEST_F(AboutViewTest, opensAtItsFullHeightInTheMiddleOfTheWindow)
{
    button(QStringLiteral("About"))->click();
    const auto& opened = only<AboutView>(window());
    const auto height = opened.height();
    const auto middle = opened.frameGeometry().center().y();
    settle();
    EXPECT_EQ(opened.height(), height);
    EXPECT_NEAR(middle, window().frameGeometry().center().y(), 2);
}

TEST_F(AboutViewTest, startsWithTheFocusOnDone)
{
    EXPECT_TRUE(button(sheet(), QStringLiteral("Done"))->hasFocus());
}

} // namespace

#include "AboutViewTests.moc"
