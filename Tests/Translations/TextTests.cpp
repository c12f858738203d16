// SPDX-License-Identifier: MIT
#include "Support/QtPrinters.h"
#include "Support/TestFolder.h"
#include "TranslationFile.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <functional>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// Every language, and how many forms of a text it has for different numbers.
const std::map<QString, qsizetype> pluralForms{
    {u"ar"_s, 6}, {u"de"_s, 2}, {u"es"_s, 2},    {u"fr"_s, 2}, {u"it"_s, 2}, {u"ja"_s, 1},
    {u"ko"_s, 1}, {u"pl"_s, 3}, {u"pt_BR"_s, 2}, {u"ru"_s, 3}, {u"tr"_s, 1}, {u"zh_CN"_s, 1},
};

class Texts : public testing::TestWithParam<QString>
{
protected:
    using Check = std::function<void(const QString& english, const QString& text)>;

    /// Calls `check` with every text of the language, and of a plural with every form.
    void forEach(const Check& check) const
    {
        for (const auto& [key, message] : m_file.messages) {
            for (const auto& text : message.texts) {
                SCOPED_TRACE(text);
                check(key.second, text);
            }
        }
    }

    const TranslationFile m_file{
        u"%1/cavernyx-platformer_%2.ts"_s.arg(QStringLiteral(TRANSLATIONS), GetParam())};
};

/// What the program fills in. "%L1" is %1 with the digits of the locale.
const QRegularExpression placeholder(u"%L?(\\d|n)"_s);

QStringList placeholders(const QString& text)
{
    QStringList found;
    for (const auto& match : placeholder.globalMatch(text))
        found.append(u'%' + match.captured(1));
    found.sort();
    return found;
}

/// The kind of its last character: that of a sentence, a question or an unfinished action.
QChar ending(const QString& text)
{
    const auto last = text.back();
    if (last == u'。')
        return u'.';
    if (last == u'？' || last == u'؟')
        return u'?';
    return u".?…"_s.contains(last) ? last : QChar();
}

TEST_P(Texts, areThereAndFinished)
{
    const TestFolder home;
    const auto path = home.path(u"current.ts"_s);
    ASSERT_EQ(QProcess::execute(QStringLiteral(LUPDATE),
                                {u"-silent"_s, QStringLiteral(SOURCES), u"-ts"_s, path}),
              0);
    const TranslationFile current(path);
    EXPECT_GT(current.messages.size(), 150U);
    EXPECT_EQ(m_file.language, GetParam());
    EXPECT_EQ(m_file.messages.size(), current.messages.size());
    for (const auto& [key, message] : current.messages) {
        SCOPED_TRACE(key.first + u": "_s + key.second);
        const auto translated = m_file.messages.find(key);
        ASSERT_TRUE(translated != m_file.messages.end());
        EXPECT_TRUE(translated->second.isFinished);
        EXPECT_EQ(translated->second.texts.size(),
                  message.isPlural ? pluralForms.at(GetParam()) : 1);
    }
}

TEST_P(Texts, haveTheBlanksOfOrdinaryText)
{
    forEach([](const QString&, const QString& text) {
        EXPECT_FALSE(text.isEmpty());
        EXPECT_EQ(text, text.trimmed());
        EXPECT_FALSE(text.contains("  "_L1));
    });
}

TEST_P(Texts, leaveRoomForTheSameThingsAsTheEnglishOnes)
{
    forEach([this](const QString& english, const QString& text) {
        auto expected = placeholders(english);
        // Arabic has words of its own for none, one and two.
        if (GetParam() == "ar"_L1 && !placeholders(text).contains("%n"_L1))
            expected.removeAll(u"%n"_s);
        EXPECT_EQ(placeholders(text), expected);
        EXPECT_EQ(text.count(u'\n'), english.count(u'\n'));
        EXPECT_FALSE(text.contains(u'&')) << "no button has a mnemonic";
    });
}

TEST_P(Texts, endAsTheEnglishOnesDo)
{
    forEach([](const QString& english, const QString& text) {
        EXPECT_EQ(ending(text), ending(english));
    });
}

TEST_P(Texts, nameNothingThatIsOnlyOnAnotherSystem)
{
    forEach([](const QString&, const QString& text) {
        EXPECT_FALSE(text.contains("Finder"_L1) || text.contains("ditto"_L1));
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, Texts, testing::ValuesIn([] {
                             QStringList languages;
                             for (const auto& [language, forms] : pluralForms)
                                 languages.append(language);
                             return languages;
                         }()),
                         [](const testing::TestParamInfo<QString>& language) {
                             return language.param.toStdString();
                         });

TEST(Languages, areThoseThatThereAreFilesFor)
{
    QStringList files;
    for (const auto& [language, forms] : pluralForms)
        files.append(u"cavernyx-platformer_%1.ts"_s.arg(language));
    EXPECT_EQ(QDir(QStringLiteral(TRANSLATIONS)).entryList({u"*.ts"_s}, QDir::Files), files);
}

TEST(ArabicTexts, beginFromTheRightAndKeepNamesAndPathsTogether)
{
    const TranslationFile file(u"" TRANSLATIONS "/cavernyx-platformer_ar.ts"_s);
    static const QRegularExpression arabicLetter(u"\\p{Arabic}"_s);
    for (const auto& [key, message] : file.messages) {
        for (const auto& text : message.texts) {
            auto words = text;
            words.remove(placeholder);
            EXPECT_EQ(words.isRightToLeft(), words.contains(arabicLetter)) << text;
            EXPECT_EQ(text.count(QChar(0x2068)), text.count(QChar(0x2069))) << text;
            EXPECT_FALSE(text.contains(u"«%"_s)) << text << ": a path may read from the left";
        }
    }
}

} // namespace
