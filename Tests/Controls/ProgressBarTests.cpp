// SPDX-License-Identifier: MIT
#include "Controls/LauncherStyle.h"
#include "Controls/ProgressBar.h"
#include "Controls/SystemColors.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVariantAnimation>

using namespace Qt::StringLiterals;

namespace {

class ProgressBarTest : public QObject, public testing::Test
{
protected:
    ProgressBarTest()
    {
        bar.resize(400, bar.sizeHint().height());
        bar.show();
        bar.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paintsAfter(double fraction)
    {
        QApplication::processEvents();
        paints = 0;
        bar.setFraction(fraction);
        QApplication::processEvents();
        return paints;
    }
    bool isFilledAt(double share)
    {
        const auto picture = bar.grab().toImage();
        return picture.pixelColor(int(picture.width() * share), picture.height() / 2) ==
               SystemColors::blue(bar.palette());
    }
    bool isAnimating()
    {
        return bar.findChild<QVariantAnimation*>()->state() == QVariantAnimation::Running;
    }

    ProgressBar bar{u"Progress"_s};
    int paints = 0;
};

TEST_F(ProgressBarTest, isPaintedFromTheFirstBytesOnButOnlyForAChange)
{
    bar.setFraction(0.01);
    EXPECT_GT(paintsAfter(0.011), 0);
    EXPECT_EQ(paintsAfter(0.011), 0);
}

TEST_F(ProgressBarTest, isFilledFromTheRightInRightToLeftLayouts)
{
    bar.setFraction(0.25);
    EXPECT_TRUE(isFilledAt(0.1) && !isFilledAt(0.9));
    bar.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(isFilledAt(0.9) && !isFilledAt(0.1));
}

TEST_F(ProgressBarTest, isAnimatedOnlyWhileItIsIndeterminateAndVisible)
{
    EXPECT_TRUE(isAnimating());
    bar.setFraction(0.25);
    EXPECT_FALSE(isAnimating());
    bar.setFraction({});
    EXPECT_TRUE(isAnimating());
    bar.hide();
    EXPECT_FALSE(isAnimating());
    bar.setFraction(0.25);
    bar.setFraction({});
    EXPECT_FALSE(isAnimating());
}

TEST_F(ProgressBarTest, standsStillInItsMiddleWithoutMotion)
{
    auto& style = *static_cast<LauncherStyle*>(QApplication::style());
    style.setReducesMotion(true);
    EXPECT_FALSE(isAnimating());
    EXPECT_TRUE(!isFilledAt(0.3) && isFilledAt(0.5) && !isFilledAt(0.7));
    bar.hide();
    bar.show();
    EXPECT_FALSE(isAnimating());
    style.setReducesMotion(false);
    EXPECT_TRUE(isAnimating());
}

} // namespace
