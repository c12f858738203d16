// SPDX-License-Identifier: MIT
#include "Process/ResolutionChoice.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

TEST(ResolutionChoice, isListedInTheOrderOfTheSettings)
{
    QStringList values;
    for (const auto choice : allResolutionChoices)
        values.append(rawValue(choice));
    EXPECT_EQ(values, (QStringList{QString(), u"1280x720"_s, u"1600x900"_s, u"1920x1080"_s,
                                   u"2560x1440"_s}));
}

TEST(ResolutionChoice, isFoundAgainByItsRawValue)
{
    for (const auto choice : allResolutionChoices)
        EXPECT_EQ(resolutionChoice(rawValue(choice)), choice);
}

TEST(ResolutionChoice, ofAnUnknownRawValueIsNone)
{
    EXPECT_EQ(resolutionChoice(u"640x480"_s), std::nullopt);
    EXPECT_EQ(resolutionChoice(u"1280X720"_s), std::nullopt);
    EXPECT_EQ(resolutionChoice(u" "_s), std::nullopt);
}

} // namespace
