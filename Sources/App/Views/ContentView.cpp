// SPDX-License-Identifier: MIT
#include "Views/ContentView.h"

#include "Controls/Accessibility.h"
#include "Controls/Buttons.h"
#include "Controls/Dimmer.h"
#include "Controls/RepeatedPressFilter.h"
#include "Controls/ScreenFit.h"
#include "Controls/Stack.h"
#include "Controls/TextLabel.h"
#include "Controls/WrappedText.h"
#include "Model/AppModel.h"
#include "Project/GameFacts.h"
#include "Views/AboutView.h"
#include "Views/HeaderArt.h"
#include "Views/PlayPanel.h"
#include "Views/SettingsView.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBoundaryFinder>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto padding = 20;

/// Returns `fact`, which comes from a file of any length, short enough to be laid out without
/// blocking. Cuts between graphemes.
QString shortened(const QString& fact)
{
    constexpr auto maxLength = 2000;
    if (fact.size() <= maxLength)
        return fact;
    const auto beginning = fact.left(maxLength + 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, beginning);
    finder.setPosition(maxLength);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    return beginning.left(finder.position()) + u'\u2026';
}

} // namespace

ContentView::ContentView(AppModel& model)
    : m_model(model)
    , m_summary(new TextLabel(TextStyle::body))
    , m_credits(new TextLabel(TextStyle::caption, {}, TextTone::secondary))
    , m_panel(new PlayPanel(model))
{
    setAccessibleRole(*this, QAccessible::Window);
    // Opens no second sheet: assistive technology can press the buttons of a blocked window.
    auto* const settings = new BorderedButton(tr("Settings\u2026"), [this] {
        if (!QApplication::activeModalWidget())
            (new SettingsView(m_model, this))->open();
    });
    //: The button that opens the sheet about the launcher and its game.
    auto* const about = new BorderedButton(tr("About"), [this] {
        if (!QApplication::activeModalWidget())
            (new AboutView(this))->open();
    });
    setColumn(16, {padding, padding, padding, padding},
              {
                  new HeaderArt,
                  verticalStack({.spacing = 6}, {m_summary, m_credits}),
                  controlsBlock(),
                  m_panel,
                  horizontalStack({}, {settings, about, spacer}),
                  spacer,
              });
    setWindowTitle(GameFacts::launcherName.toString());
    fitToScreen(*this, [this](QSize available) { fit(available); });
    new Dimmer(*this);
    ignoreRepeatedPresses(*this);
    m_panel->playButton().setFocus();

    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ContentView::keepPlayInView);
    connect(m_panel, &PlayPanel::disclosed, this, &ContentView::scrollTo);
    connect(&m_model, &AppModel::changed, this, &ContentView::refreshFacts);
    refreshFacts();
}

QWidget* ContentView::controlsBlock()
{
    //: The title above the keys and buttons that the game is played with.
    QList<StackItem> rows{new TextLabel(TextStyle::headline, tr("Controls"))};
    for (const auto& [action, input] : GameFacts::controls) {
        // Both have the same font size, so aligning the tops aligns the baselines.
        auto* const left = new TextLabel([] { return textFont(TextStyle::body, QFont::Medium); },
                                         GameFacts::translated(action));
        auto* const right =
            new TextLabel(TextStyle::body, GameFacts::translated(input), TextTone::secondary);
        m_actions.append(left);
        rows.append(horizontalStack({}, {{left, Qt::AlignTop}, {right, Qt::AlignTop}}));
    }
    fitActions();
    rows.append(new TextLabel(TextStyle::caption, GameFacts::translated(GameFacts::controlsSource),
                              TextTone::secondary));
    return verticalStack({.spacing = 4}, rows);
}

void ContentView::fitActions()
{
    auto width = 120;
    for (const auto* const action : m_actions)
        width = std::max(width, WrappedText::widestWord(action->text(), action->font()));
    for (auto* const action : m_actions)
        action->setFixedWidth(width);
}

void ContentView::refreshFacts()
{
    const auto& facts = m_model.facts();
    m_summary->setText(shortened(facts.summary));
    m_credits->setText(shortened(facts.license) + u" \u00b7 "_s + shortened(facts.author));
}

void ContentView::scrollTo(QWidget* disclosed)
{
    QTimer::singleShot(0, disclosed, [this, disclosed] {
        // A layout notifies the layout above it by an event.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        ensureWidgetVisible(disclosed, 0, padding);
    });
}

void ContentView::fit(QSize available)
{
    const auto fitting = minSize.boundedTo(available);
    if (fitting == minimumSize())
        return;
    const auto isMinimal = size() == minimumSize();
    setMinimumSize(fitting);
    if (isMinimal)
        resize(fitting);
}

void ContentView::keepPlayInView()
{
    auto& bar = *verticalScrollBar();
    if (bar.value() != m_startPosition)
        return;
    const auto& play = m_panel->playButton();
    const auto bottom = play.mapTo(widget(), play.rect().bottomLeft()).y() + 1 + padding;
    bar.setValue(bottom - viewport()->height());
    m_startPosition = bar.value();
}

bool ContentView::event(QEvent* event)
{
    propagateFontChange(*this, *event);
    if (event->type() == QEvent::ApplicationFontChange)
        fitActions();
    const auto handled = ScrollColumn::event(event);
    // A hidden window is not laid out.
    if (event->type() == QEvent::Show)
        keepPlayInView();
    return handled;
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // The focused control has ignored the key.
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        ScrollColumn::keyPressEvent(event);
    else if (!event->isAutoRepeat() && !(event->modifiers() & ~Qt::KeypadModifier))
        m_panel->playButton().click();
}
