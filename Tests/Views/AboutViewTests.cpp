// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/LinkLabel.h"

#include <QPointer>
#include <QTest>

namespace {

using AboutViewTest = ViewTest;

TEST_F(AboutViewTest, is440WideWithItsTextsInOrder)
{
    EXPECT_EQ(about().width(), 440);
    expectTexts(
        about(),
        {
            {u"About", 17, QFont::Bold},
            {u"The game \"Snaglet!\" is made by Quennet and the Brindlework team, 2019, and is "
             u"released under the MIT License. The game belongs to its author; this app is only a "
             u"launcher that downloads it.",
             13},
            {u"Based on brindlework-demos/tetherwalk, MIT License.", 12},
            {u"The Godot engine is free software under the MIT License (godotengine.org). It is "
             u"downloaded from the official godotengine/godot releases and checked against the "
             u"published SHA-512 checksum.",
             13},
            {u"Nothing is sent anywhere except the two downloads (the game from GitHub and the "
             u"engine from GitHub releases).",
             12, QFont::Normal, true},
        });
    EXPECT_EQ(gapBelow(*label(about(), u"Nothing is sent anywhere except the two downloads (the "
                                       u"game from GitHub and the engine from GitHub releases)."),
                       *button(about(), u"Done")),
              10);
}

TEST_F(AboutViewTest, showsTheAddressItselfAsALink)
{
    expectTexts(about(), {{u"<a href=\"https://github.com/brindlework-demos/tetherwalk\">"
                           u"https://github.com/brindlework-demos/tetherwalk</a>",
                           13}});
    const auto& link = only<LinkLabel>(about());
    EXPECT_EQ(
        gapBelow(*label(about(), u"Based on brindlework-demos/tetherwalk, MIT License."), link),
        10);
    EXPECT_EQ(rectOf(link).left(), 20);
}

TEST_F(AboutViewTest, closesWithReturnAlsoFromTheLink)
{
    const QPointer<AboutView> open(&about());
    auto& link = only<LinkLabel>(*open);
    link.setFocus();
    QTest::keyClick(&link, Qt::Key_Return);
    settle();
    EXPECT_FALSE(open);
}

TEST_F(AboutViewTest, opensAtItsFullHeightInTheMiddleOfTheWindowWithTheFocusOnDone)
{
    button(u"About")->click();
    const auto& opened = only<AboutView>();
    const auto height = opened.height();
    const auto middle = opened.frameGeometry().center().y();
    settle();
    EXPECT_EQ(opened.height(), height);
    EXPECT_NEAR(middle, window().frameGeometry().center().y(), 2);
    EXPECT_TRUE(button(about(), u"Done")->hasFocus());
}

} // namespace
