// SPDX-License-Identifier: MIT
#include "Views/ContentView.h"

#include "Controls/Accessibility.h"
#include "Controls/Buttons.h"
#include "Controls/Dimmer.h"
#include "Controls/RepeatedPressFilter.h"
#include "Controls/ScreenFit.h"
#include "Controls/Stack.h"
#include "Controls/TextLabel.h"
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
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr auto padding = 20;

/// An action and its keys or buttons. Both have the same font size, so their baselines meet when
/// both are at the top.
QWidget* controlRow(const QString& action, const QString& binding)
{
    auto* const left =
        new TextLabel([] { return textFont(TextStyle::body, QFont::Medium); }, action);
    auto* const right = new TextLabel(TextStyle::body, binding, TextTone::secondary);
    left->setFixedWidth(120);
    return horizontalStack({}, {{left, Qt::AlignTop}, {right, Qt::AlignTop}});
}

/// A label lays out all of its text at once, and a fact comes from a file of any length.
QString shortened(const QString& fact)
{
    constexpr auto maxLength = 2000;
    return fact.size() <= maxLength ? fact : fact.left(maxLength) + u'\u2026';
}

} // namespace

ContentView::ContentView(AppModel& model)
    : m_model(model)
    , m_summary(new TextLabel(TextStyle::body))
    , m_credits(new TextLabel(TextStyle::caption, {}, TextTone::secondary))
    , m_panel(new PlayPanel(model))
{
    setAccessibleRole(*this, QAccessible::Window);
    // One sheet at a time, and none over a question: assistive technology can press the buttons of
    // a blocked window.
    auto* const settings = new BorderedButton(tr("Settings\u2026"), [this] {
        if (!QApplication::activeModalWidget())
            (new SettingsView(m_model, this))->open();
    });
    //: The button that opens the sheet about the launcher and its game.
    auto* const about = new BorderedButton(tr("About"), [this] {
        if (!QApplication::activeModalWidget())
            (new AboutView(this))->open();
    });
    auto* const column = new QWidget;
    stackVertically(*column, {.spacing = 16, .padding = padding},
                    {
                        new HeaderArt,
                        verticalStack({.spacing = 6}, {m_summary, m_credits}),
                        controlsBlock(),
                        m_panel,
                        horizontalStack({}, {settings, about, spacer}),
                        spacer,
                    });

    setWidget(column);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWindowTitle(GameFacts::launcherName.toString());
    new ScreenFit(*this, minSize);
    new Dimmer(*this);
    new RepeatedPressFilter(*this);
    m_panel->playButton().setFocus();

    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            &ContentView::reserveScrollBarSpace);
    connect(m_panel, &PlayPanel::disclosed, this, &ContentView::scrollTo);
    connect(&m_model, &AppModel::changed, this, &ContentView::refreshFacts);
    refreshFacts();
}

QWidget* ContentView::controlsBlock()
{
    //: The title above the keys and buttons that the game is played with.
    QList<StackItem> rows{new TextLabel(TextStyle::headline, tr("Controls"))};
    for (const auto& [action, input] : GameFacts::controls)
        rows.append(controlRow(GameFacts::translated(action), GameFacts::translated(input)));
    rows.append(new TextLabel(TextStyle::caption, GameFacts::translated(GameFacts::controlsSource),
                              TextTone::secondary));
    return verticalStack({.spacing = 4}, rows);
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
        // Each layout tells its parent's layout by an event, up to the column's.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        ensureWidgetVisible(disclosed, 0, padding);
    });
}

void ContentView::reserveScrollBarSpace()
{
    const auto& bar = *verticalScrollBar();
    const auto width = bar.maximum() > bar.minimum() ? bar.sizeHint().width() : 0;
    auto margins = QMargins(padding, padding, padding, padding);
    if (isRightToLeft())
        margins.setLeft(padding - width);
    else
        margins.setRight(padding - width);
    widget()->layout()->setContentsMargins(margins);
}

bool ContentView::event(QEvent* event)
{
    propagateFontChange(*this, *event);
    return QScrollArea::event(event);
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // Keys that the control under the focus has not used.
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat() && !(event->modifiers() & ~Qt::KeypadModifier))
            m_panel->playButton().click();
        return;
    case Qt::Key_Home:
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
        return;
    case Qt::Key_End:
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum);
        return;
    default:
        QScrollArea::keyPressEvent(event);
    }
}
