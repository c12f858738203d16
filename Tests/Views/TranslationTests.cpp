// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Support/MarkedLanguage.h"
#include "Views/AboutView.h"
#include "Views/LinkLabel.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/SettingsView.h"
#include "Views/TextBox.h"

#include <QComboBox>
#include <QTest>

namespace {

/// The language has to be there before the window is made.
struct InThatLanguage
{
    MarkedLanguage language;
};

class TranslationTest : private InThatLanguage, public ViewTest
{
protected:
    static bool isTranslated(const QString& text)
    {
        return text.contains(u'<') && text.contains(u'>');
    }
    static QString marked(const QString& text) { return u'<' + text + u'>'; }

    /// Checks every text below `parent` that is shown or told, but those in `untranslated`.
    static void expectTranslated(const QWidget& parent, const QStringList& untranslated)
    {
        EXPECT_TRUE(isTranslated(parent.windowTitle())) << qPrintable(parent.windowTitle());
        auto count = 0;
        const auto expect = [&](const QString& text) {
            if (text.isEmpty() || untranslated.contains(text))
                return;
            ++count;
            EXPECT_TRUE(isTranslated(text)) << qPrintable(text);
        };
        const auto widgets = parent.findChildren<QWidget*>();
        for (const auto* const widget : widgets) {
            expect(widget->accessibleName());
            expect(widget->accessibleDescription());
            expect(widget->toolTip());
            if (const auto* const label = qobject_cast<const QLabel*>(widget);
                label && !qobject_cast<const LinkLabel*>(widget))
                expect(label->text());
            if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
                expect(button->text());
        }
        EXPECT_GT(count, 5) << "there are texts to look at";
    }
};

TEST_F(TranslationTest, reachesEveryTextOfTheWindowInEveryPhase)
{
    AppModelAccess::setFacts(
        model(), {QStringLiteral("summary"), QStringLiteral("MIT"), QStringLiteral("author")});
    model().log().append(QStringLiteral("a line of the log"));
    model().setShowLog(true);
    const QStringList ofOthers{QStringLiteral("summary"), QStringLiteral("MIT \u00b7 author"),
                               QStringLiteral("It broke.")};
    for (const auto& phase :
         {Phase::notDownloaded(), Phase::downloading(), Phase::settingUp(), Phase::ready(),
          Phase::playing(), Phase::needs(QStringLiteral("It broke."))}) {
        AppModelAccess::setPhase(model(), phase);
        settle();
        expectTranslated(window(), ofOthers);
    }
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    settle();
    expectTranslated(window(), ofOthers);
}

TEST_F(TranslationTest, leavesTheFactsTheLogAndTheReportAsTheyAre)
{
    AppModelAccess::setFacts(
        model(), {QStringLiteral("summary"), QStringLiteral("MIT"), QStringLiteral("author")});
    model().log().append(QStringLiteral("a line of the log"));
    model().setShowLog(true);
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    AppModelAccess::setPhase(model(), Phase::needs(QStringLiteral("It broke.")));
    settle();
    EXPECT_TRUE(label(QStringLiteral("summary")));
    EXPECT_TRUE(label(QStringLiteral("MIT \u00b7 author")));
    EXPECT_TRUE(label(QStringLiteral("It broke.")));
    EXPECT_EQ(only<TextBox>().edit().text(), QStringLiteral("What happened"));
    auto& log = only<TextBox>(only<LogView>()).edit();
    EXPECT_TRUE(waitUntil([&] { return log.text() == QStringLiteral("a line of the log"); }));
}

TEST_F(TranslationTest, reachesEveryTextOfTheSettings)
{
    auto& sheet = open<SettingsView>(marked(QStringLiteral("Settings\u2026")));
    expectTranslated(sheet, {});
    EXPECT_EQ(only<QComboBox>(sheet).itemText(0), marked(QStringLiteral("Game default")));
    EXPECT_EQ(only<QComboBox>(sheet).itemText(1), QStringLiteral("1280 \u00d7 720"));
    AppModelAccess::setInstalledSize(model(), QStringLiteral("312.4 MB"));
    EXPECT_TRUE(button(sheet, marked(QStringLiteral("Remove everything (frees 312.4 MB)"))));
}

TEST_F(TranslationTest, reachesEveryTextOfTheAboutSheet)
{
    expectTranslated(open<AboutView>(marked(QStringLiteral("About"))),
                     {QStringLiteral("https://github.com/brindlework-demos/tetherwalk")});
}

} // namespace
