// SPDX-License-Identifier: MIT
#include "Controls/TextLabel.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QImage drawn(const QString& text, Qt::LayoutDirection direction, bool wraps, int width)
{
    TextLabel label(TextStyle::body, text);
    label.setWordWrap(wraps);
    label.setLayoutDirection(direction);
    label.resize(width, label.heightForWidth(width));
    return label.grab().toImage();
}

/// The columns in which something is drawn, from the first to the last.
std::pair<int, int> inked(const QImage& picture)
{
    const auto background = picture.pixel(0, 0);
    auto left = picture.width();
    auto right = -1;
    for (auto y = 0; y < picture.height(); ++y) {
        for (auto x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != background) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return {left, right};
}

class TextLabelTest : public testing::TestWithParam<bool>
{
};

TEST_P(TextLabelTest, beginsWhereTheWindowIsReadFromWhateverTheTextsScript)
{
    for (const auto& text : {u"Alt + R"_s, u"العب"_s}) {
        EXPECT_LT(inked(drawn(text, Qt::LeftToRight, GetParam(), 400)).second, 200);
        EXPECT_GT(inked(drawn(text, Qt::RightToLeft, GetParam(), 400)).first, 200);
    }
}

TEST_P(TextLabelTest, endsALatinSentenceOnTheRightInAWindowThatIsReadFromTheRight)
{
    const auto picture = drawn(u"It ended."_s, Qt::RightToLeft, GetParam(), 400);
    const auto upperHalf = picture.copy(0, 0, picture.width(), picture.height() / 2);
    EXPECT_GT(inked(picture).second, inked(upperHalf).second) << "the full stop is the last";
}

INSTANTIATE_TEST_SUITE_P(Wrapping, TextLabelTest, testing::Bool());

TEST(WrappedTextLabel, hasNoBlankAtTheBeginningOfALineFromTheRight)
{
    // The first line ends with a blank, the second one does not.
    const auto picture = drawn(u"ممممممممممممم ممممممممممممم"_s, Qt::RightToLeft, true, 150);
    const auto half = picture.height() / 2;
    const auto first = inked(picture.copy(0, 0, picture.width(), half)).second;
    const auto second = inked(picture.copy(0, half, picture.width(), half)).second;
    EXPECT_GT(first, 75);
    EXPECT_EQ(first, second);
}

} // namespace
