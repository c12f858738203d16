// SPDX-License-Identifier: MIT
#include "Controls/LinkLabel.h"
#include "Controls/Palettes.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDesktopServices>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QUrl address(u"https://example.org/a/page"_s);

/// A link in a window of its own, and the browser that it opens.
class LinkLabelTest : public QObject, public testing::Test
{
    Q_OBJECT

public:
    Q_INVOKABLE void open(const QUrl& url) { opened.append(url); }

protected:
    LinkLabelTest()
    {
        QDesktopServices::setUrlHandler(u"https"_s, this, "open");
        link.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&link));
    }
    ~LinkLabelTest() override { QDesktopServices::unsetUrlHandler(u"https"_s); }

    LinkLabel link{TextStyle::body, address};
    QList<QUrl> opened;
};

TEST_F(LinkLabelTest, isNamedAfterItsAddress)
{
    EXPECT_EQ(link.accessibleName(), address.toString());
    EXPECT_TRUE(link.openExternalLinks());
    EXPECT_TRUE(link.focusPolicy() & Qt::TabFocus);
}

TEST_F(LinkLabelTest, opensWithTheSpaceBar)
{
    link.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&link, Qt::Key_Space);
    EXPECT_EQ(opened, QList<QUrl>{address});
}

TEST_F(LinkLabelTest, opensWithAClick)
{
    QTest::mouseClick(&link, Qt::LeftButton, {}, QPoint(link.width() / 4, link.height() / 2));
    EXPECT_EQ(opened, QList<QUrl>{address});
}

TEST_F(LinkLabelTest, opensForAssistiveTechnology)
{
    auto* const actions = QAccessible::queryAccessibleInterface(&link)->actionInterface();
    ASSERT_TRUE(actions);
    actions->doAction(actions->actionNames().constFirst());
    EXPECT_EQ(opened.size(), 1);
}

TEST_F(LinkLabelTest, followsTheLinkColorOfThePalette)
{
    for (const auto& palette : {Palettes::light(), Palettes::dark(), Palettes::light()}) {
        QApplication::setPalette(palette);
        QApplication::processEvents();
        const auto picture = link.grab().toImage();
        auto found = 0;
        for (auto x = 0; x < picture.width(); ++x) {
            for (auto y = 0; y < picture.height(); ++y)
                found += picture.pixel(x, y) == palette.color(QPalette::Link).rgb() ? 1 : 0;
        }
        EXPECT_GT(found, 20);
    }
}

} // namespace

#include "LinkLabelTests.moc"
