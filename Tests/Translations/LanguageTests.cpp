// SPDX-License-Identifier: MIT
#include "Support/QtPrinters.h"

#include "Shell/Translation.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

class Language : public testing::Test
{
protected:
    ~Language() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }

    /// The title of the button "Play" for a player who prefers these languages.
    static QString play(const QStringList& preferredLanguages)
    {
        const Translation translation(QStringLiteral(INSTALLABLE_TRANSLATIONS), preferredLanguages);
        return QCoreApplication::translate("PlayPanel", "Play");
    }
};

TEST_F(Language, isTheFirstThatThePlayerPrefersAndThatIsThere)
{
    EXPECT_EQ(play({u"de-DE"_s, u"de"_s}), u"Spielen");
    EXPECT_EQ(play({u"de-AT"_s}), u"Spielen");
    EXPECT_EQ(play({u"sv-SE"_s, u"sv"_s, u"ja"_s, u"de"_s}), u"プレイ");
    EXPECT_EQ(play({u"sv-SE"_s}), u"Play");
    EXPECT_EQ(play({u"C"_s}), u"Play");
}

TEST_F(Language, isEnglishForWhoPrefersThatToOneThatIsThere)
{
    EXPECT_EQ(play({u"en-GB"_s, u"en-Latn-GB"_s, u"de"_s}), u"Play");
    EXPECT_EQ(play({u"sv"_s, u"en"_s, u"de"_s}), u"Play");
}

TEST_F(Language, isThatOfAnotherCountryOnlyInTheSameScript)
{
    EXPECT_EQ(play({u"pt-PT"_s, u"pt-Latn-PT"_s}), u"Jogar");
    EXPECT_EQ(play({u"zh-SG"_s, u"zh-Hans-SG"_s}), u"开始游戏");
    EXPECT_EQ(play({u"zh-TW"_s, u"zh-Hant-TW"_s}), u"Play");
}

TEST_F(Language, setsTheDirectionOfTheWindow)
{
    play({u"ar-EG"_s});
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    play({u"tr-TR"_s});
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(Language, hasAPluralFormForEachNumber)
{
    const Translation translation(QStringLiteral(INSTALLABLE_TRANSLATIONS), {u"pl"_s});
    const auto bytes = [](int number) {
        return QCoreApplication::translate("Unit", "%n bytes", nullptr, number);
    };
    EXPECT_EQ(bytes(1), u"1\u00a0bajt");
    EXPECT_EQ(bytes(3), u"3\u00a0bajty");
    EXPECT_EQ(bytes(12), u"12\u00a0bajtów");
}

} // namespace
