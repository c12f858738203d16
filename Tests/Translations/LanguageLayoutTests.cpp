// SPDX-License-Identifier: MIT
// The window and its sheets in every language, and a picture of each.

#include "Views/Picture.h"
#include "Views/TextFit.h"

#include "Shell/Translation.h"
#include "Shell/WidgetDesktop.h"

#include <QDir>
#include <QLocale>
#include <QMessageBox>
#include <QTimer>

#include <string>
#include <vector>

namespace {

/// A base class, so that the language is there before the window.
class InLanguage : public testing::WithParamInterface<std::string>
{
protected:
    InLanguage() { QLocale::setDefault(QLocale(QString::fromStdString(GetParam()))); }
    ~InLanguage()
    {
        QLocale::setDefault(m_locale);
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }

private:
    const QLocale m_locale;
    const Translation m_translation{QStringLiteral(INSTALLABLE_TRANSLATIONS),
                                    {QString::fromStdString(GetParam())}};
};

class LanguageLayout : public InLanguage, public Picture
{
protected:
    LanguageLayout()
        : Picture(Theme::light)
    {
    }

    /// Checks what `shown` looks like in the usual font and in one twice as large.
    void expectFitting(QWidget& shown, const std::string& state)
    {
        SCOPED_TRACE(state);
        EXPECT_EQ(layoutFaults(shown), QStringList());
        save(shown, GetParam() + '-' + state);
        enlargeFont(2);
        EXPECT_EQ(layoutFaults(shown), QStringList()) << "twice as large";
        enlargeFont(0.5);
    }

    void expectWindowFits(const std::string& state)
    {
        showAll();
        expectFitting(window(), state);
    }
};

TEST_P(LanguageLayout, cutsNothingInTheWindow)
{
    using enum Phase::Kind;
    expectWindowFits("not-downloaded");
    showDownload();
    expectWindowFits("downloading");
    enter(settingUp);
    expectWindowFits("setting-up");
    enter(ready);
    expectWindowFits("ready");
    enter(playing);
    expectWindowFits("playing");
    showAllBlocks();
    expectWindowFits("failed");
}

TEST_P(LanguageLayout, cutsNothingInTheSheets)
{
    home.write(root(u"more"_s), QByteArray(12'400'000, 'x'));
    settings();
    ASSERT_TRUE(waitUntil([this] { return !model().installedSize().isEmpty(); }));
    settle();
    expectFitting(settings(), "settings");
    settings().reject();
    settle();
    expectFitting(about(), "about");
}

TEST_P(LanguageLayout, cutsNothingInTheAlerts)
{
    enter(Phase::Kind::ready);
    desktop.answer = false;
    model().updateGame();
    model().reinstall();
    model().removeEverything();
    enter(Phase::Kind::playing);
    EXPECT_FALSE(model().confirmQuit());
    ASSERT_EQ(desktop.questions.size(), 4);
    auto number = 0;
    for (const auto& question : desktop.questions) {
        const auto state = "alert-" + std::to_string(++number);
        QTimer::singleShot(0, &window(), [&] {
            auto& alert = only<QMessageBox>();
            expectFitting(alert, state);
            alert.reject();
        });
        EXPECT_FALSE(WidgetDesktop().confirm(question.title, question.message, question.button));
    }
}

TEST_P(LanguageLayout, isDrawnInAFontThatHasItsCharacters)
{
    const QFontMetrics font(QApplication::font());
    for (const auto* const shown : window().findChildren<QLabel*>()) {
        for (const auto character : shown->text())
            EXPECT_TRUE(!character.isLetter() || font.inFont(character)) << shown->text();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageLayout, testing::ValuesIn([] {
                             std::vector<std::string> languages;
                             const QDir folder(QStringLiteral(TRANSLATIONS));
                             for (const auto& file : folder.entryList({u"*.ts"_s})) {
                                 const auto name = file.section(u'.', 0, 0);
                                 languages.push_back(name.section(u'_', 1).toStdString());
                             }
                             return languages;
                         }()),
                         [](const auto& language) { return language.param; });

} // namespace
