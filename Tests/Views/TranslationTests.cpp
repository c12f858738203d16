// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Support/MarkedLanguage.h"

#include "Controls/LinkLabel.h"

#include <QComboBox>
#include <QScopeGuard>

namespace {

/// A base class, so that the language is there before the window.
struct InMarkedLanguage
{
    MarkedLanguage language;
};

class TranslationTest : private InMarkedLanguage, public ViewTest
{
protected:
    /// The game's own facts, which nothing translates.
    QStringList facts()
    {
        const auto& facts = model().facts();
        return {GameFacts::launcherName.toString(), facts.summary,
                facts.license + u" \u00b7 "_s + facts.author};
    }

    /// Checks every text and accessible name below `parent`, except for those in `untranslated`.
    static void expectTranslated(const QWidget& parent, const QStringList& untranslated)
    {
        auto count = 0;
        const auto expect = [&](const QString& text) {
            if (text.isEmpty() || untranslated.contains(text))
                return;
            ++count;
            EXPECT_TRUE(text.contains(u'<') && text.contains(u'>')) << text;
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
    using enum Phase::Kind;
    model().setShowLog(true);
    for (const auto phase : {notDownloaded, downloading, settingUp, ready, playing, needs}) {
        enter(phase);
        expectTranslated(window(), facts());
    }
}

TEST_F(TranslationTest, leavesTheFactsTheLogAndTheReportAsTheyAre)
{
    showAllBlocks();
    for (const auto& text : facts() + QStringList{model().phase().message()})
        EXPECT_TRUE(label(text)) << text;
    EXPECT_EQ(failure().edit().text(), *model().failureText());
    EXPECT_TRUE(waitUntil([this] { return logBox().edit().text() == logged().join(u'\n'); }));
}

TEST_F(TranslationTest, reachesEveryTextOfTheSettings)
{
    auto& sheet = settings();
    expectTranslated(sheet, {});
    EXPECT_EQ(only<QComboBox>(sheet).itemText(0), u"<Game default>"_s);
    EXPECT_EQ(only<QComboBox>(sheet).itemText(1), u"1280 \u00d7 720"_s);
    home.write(root(u"more"_s), QByteArray(3'000'000, 'x'));
    model().updateSize();
    EXPECT_TRUE(
        waitUntil([&] { return button(sheet, u"<Remove everything (frees <3 MB>)>") != nullptr; }));
}

TEST_F(TranslationTest, keepsTheWidthBeforeTheHeightInALineFromTheRight)
{
    const auto guard =
        qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto& sheet = settings();
    EXPECT_EQ(only<QComboBox>(sheet).itemText(1), u"\u200e1280 \u00d7 720"_s);
}

TEST_F(TranslationTest, reachesEveryTextOfTheAboutSheet)
{
    expectTranslated(about(), {u"https://github.com/brindlework-demos/tetherwalk"_s});
}

} // namespace
