// SPDX-License-Identifier: MIT
#include "Process/ResolutionChoice.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

TEST(ResolutionChoice, isListedInTheOrderOfTheSettings)
{
    QStringList values;
    for (const auto choice : allResolutionChoices)
        values.append(rawValue(choice));
    EXPECT_EQ(values,
              (QStringList{QString(), QStringLiteral("1280x720"), QStringLiteral("1600x900"),
                           QStringLiteral("1920x1080"), QStringLiteral("2560x1440")}));
}

TEST(ResolutionChoice, isFoundAgainByItsRawValue)
{
    for (const auto choice : allResolutionChoices)
        EXPECT_EQ(resolutionChoice(rawValue(choice)), choice);
}

TEST(ResolutionChoice, ofAnUnknownRawValueIsNone)
{
    EXPECT_EQ(resolutionChoice(QStringLiteral("640x480")), std::nullopt);
    EXPECT_EQ(resolutionChoice(QStringLiteral("1280X720")), std::nullopt);
    EXPECT_EQ(resolutionChoice(QStringLiteral(" ")), std::nullopt);
}

} // namespace
