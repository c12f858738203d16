// SPDX-License-Identifier: MIT
#include "Controls/TextLabel.h"

#include <gtest/gtest.h>

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

class TextLabelTest : public testing::TestWithParam<bool>
{
protected:
    /// Whether a short text is drawn on the left of a wide label.
    static bool isOnTheLeft(const QString& text, Qt::LayoutDirection direction)
    {
        TextLabel label(TextStyle::body, text);
        label.setWordWrap(GetParam());
        label.setLayoutDirection(direction);
        label.resize(400, label.sizeHint().height());
        const auto picture = label.grab().toImage();
        const auto left = picture.copy(0, 0, 200, picture.height());
        const auto right = picture.copy(200, 0, 200, picture.height());
        QImage blank(left.size(), left.format());
        blank.fill(label.palette().color(QPalette::Window));
        EXPECT_NE(left == blank, right == blank);
        return right == blank;
    }
};

TEST_P(TextLabelTest, beginsWhereTheWindowIsReadFromWhateverTheTextsScript)
{
    for (const auto& text : {u"Alt + R"_s, u"العب"_s}) {
        EXPECT_TRUE(isOnTheLeft(text, Qt::LeftToRight));
        EXPECT_FALSE(isOnTheLeft(text, Qt::RightToLeft));
    }
}

INSTANTIATE_TEST_SUITE_P(Wrapping, TextLabelTest, testing::Bool());

} // namespace
