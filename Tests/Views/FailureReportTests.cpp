// SPDX-License-Identifier: MIT
#include "Views/PlayPanelTest.h"

#include "Views/LongTextEdit.h"

namespace {

using FailureReportTest = PlayPanelTest;

TEST_F(FailureReportTest, scrollsALongReportInABoxOfOneHeight)
{
    enter(Phase::needs(QStringLiteral("It broke.")));
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    settle();
    ASSERT_TRUE(failure().isVisible());
    EXPECT_EQ(failure().edit().height(), 170);
    EXPECT_EQ(failure().height(), 170 + 2 * 6);
    const auto height = panel().height();

    AppModelAccess::setFailureText(model(), QStringLiteral("line\n").repeated(300));
    settle();
    EXPECT_EQ(panel().height(), height);
    EXPECT_EQ(failure().edit().text(), QStringLiteral("line\n").repeated(300));
}

TEST_F(FailureReportTest, showsAReportOnlyInNeeds)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::ready());
    EXPECT_FALSE(showsFailure());
    enter(Phase::needs(QStringLiteral("It broke.")));
    EXPECT_TRUE(showsFailure());
    enter(Phase::ready());
    EXPECT_FALSE(showsFailure());
}

TEST_F(FailureReportTest, letsTheReportBeSelectedButNotChanged)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::needs(QStringLiteral("It broke.")));
    EXPECT_TRUE(failure().edit().isReadOnly());
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

TEST_F(FailureReportTest, copiesTheReport)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::needs(QStringLiteral("It broke.")));
    button(QStringLiteral("Copy"))->click();
    EXPECT_EQ(desktop.copied, QStringList{QStringLiteral("What happened: it broke.")});
}

} // namespace
