// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Support/MarkedLanguage.h"

#include "Controls/LinkLabel.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

/// A base class, so that the language is there before the window.
struct InMarkedLanguage
{
    MarkedLanguage language;
};

class TranslationTest : private InMarkedLanguage, public ViewTest
{
protected:
    /// Gives the model a fact, a log line and a report of its own, which nothing translates.
    void fill()
    {
        AppModelAccess::setFacts(model(), {u"summary"_s, u"MIT"_s, u"author"_s});
        model().log().append(u"a line of the log"_s);
        model().setShowLog(true);
        AppModelAccess::setFailureText(model(), u"What happened"_s);
    }

    /// Opens a sheet by the translated title of its button.
    template<typename Sheet>
    Sheet& open(QStringView title)
    {
        button(title)->click();
        settle();
        return only<Sheet>();
    }

    /// Checks every text and accessible name below `parent`, except for those in `untranslated`.
    static void expectTranslated(const QWidget& parent, const QStringList& untranslated)
    {
        auto count = 0;
        const auto expect = [&](const QString& text) {
            if (text.isEmpty() || untranslated.contains(text))
                return;
            ++count;
            EXPECT_TRUE(text.contains(u'<') && text.contains(u'>')) << qPrintable(text);
        };
        EXPECT_FALSE(parent.windowTitle().isEmpty());
        expect(parent.windowTitle());
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
    fill();
    for (const auto& phase : {Phase::notDownloaded(), Phase::downloading(), Phase::settingUp(),
                              Phase::ready(), Phase::playing(), Phase::needs(u"It broke."_s)}) {
        enter(phase);
        expectTranslated(window(), {GameFacts::launcherName.toString(), u"summary"_s,
                                    u"MIT \u00b7 author"_s, u"It broke."_s});
    }
}

TEST_F(TranslationTest, leavesTheFactsTheLogAndTheReportAsTheyAre)
{
    fill();
    enter(Phase::needs(u"It broke."_s));
    for (const auto* const text : {u"summary", u"MIT \u00b7 author", u"It broke."})
        EXPECT_TRUE(label(text));
    EXPECT_EQ(failure().edit().text(), u"What happened"_s);
    EXPECT_TRUE(waitUntil([this] { return logBox().edit().text() == u"a line of the log"_s; }));
}

TEST_F(TranslationTest, reachesEveryTextOfTheSettings)
{
    auto& sheet = open<SettingsView>(u"<Settings\u2026>");
    expectTranslated(sheet, {});
    EXPECT_EQ(only<QComboBox>(sheet).itemText(0), u"<Game default>"_s);
    EXPECT_EQ(only<QComboBox>(sheet).itemText(1), u"1280 \u00d7 720"_s);
    AppModelAccess::setInstalledSize(model(), u"312.4 MB"_s);
    EXPECT_TRUE(button(sheet, u"<Remove everything (frees 312.4 MB)>"));
}

TEST_F(TranslationTest, reachesEveryTextOfTheAboutSheet)
{
    expectTranslated(open<AboutView>(u"<About>"),
                     {u"https://github.com/brindlework-demos/tetherwalk"_s});
}

} // namespace
