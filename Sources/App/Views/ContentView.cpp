// SPDX-License-Identifier: MIT
#include "Views/ContentView.h"

#include "AppModel.h"
#include "Views/AboutView.h"
#include "Views/AccessibleRoles.h"
#include "Views/BorderedButton.h"
#include "Views/FontChange.h"
#include "Views/HeaderArt.h"
#include "Views/PlayButton.h"
#include "Views/PlayPanel.h"
#include "Views/ScreenFit.h"
#include "Views/SettingsView.h"
#include "Views/Shade.h"
#include "Views/Stack.h"
#include "Views/TextLabel.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include <array>

namespace {

constexpr auto spacing = 16;
constexpr auto padding = 20;
constexpr auto factsSpacing = 6;
constexpr auto controlsSpacing = 4;
constexpr auto actionWidth = 120;

/// What the player does, and with which key or button. Fixed texts: the game offers no such list.
struct Control
{
    const char* action;
    const char* binding;
};

constexpr std::array controls{
    Control{QT_TRANSLATE_NOOP("ContentView", "Move"),
            QT_TRANSLATE_NOOP("ContentView", "A / D, or the left stick")},
    Control{QT_TRANSLATE_NOOP("ContentView", "Jump"),
            QT_TRANSLATE_NOOP("ContentView", "Space or W, or the A button")},
    Control{QT_TRANSLATE_NOOP("ContentView", "Grappling hook"),
            QT_TRANSLATE_NOOP("ContentView", "Left mouse button, or a shoulder button")},
    Control{QT_TRANSLATE_NOOP("ContentView", "Aim"),
            QT_TRANSLATE_NOOP("ContentView", "Hold F, or use the right stick")},
    Control{QT_TRANSLATE_NOOP("ContentView", "Restart"),
            QT_TRANSLATE_NOOP("ContentView", "Alt + R")},
};

/// What is done on the left, and with which key or button beside it. Both are set in the same size,
/// so that their first baselines meet where their tops do.
QWidget* controlRow(const Control& control)
{
    auto* const action =
        new TextLabel(TextStyle::body, QFont::Medium, ContentView::tr(control.action));
    auto* const binding =
        new TextLabel(TextStyle::body, ContentView::tr(control.binding), TextTone::secondary);
    action->setFixedWidth(actionWidth);
    return horizontalStack(defaultSpacing, {top(action), top(binding)});
}

QList<StackItem> controlRows()
{
    QList<StackItem> rows;
    for (const auto& control : controls)
        rows.append(controlRow(control));
    return rows;
}

/// A label lays out all of its text at once, on which a file that says far too much could hold up
/// the window.
QString shortened(const QString& fact)
{
    constexpr auto longestFact = 2000;
    return fact.size() <= longestFact ? fact : fact.left(longestFact) + QChar(u'\u2026');
}

} // namespace

ContentView::ContentView(AppModel& model)
    : m_model(model)
{
    installAccessibleRoles();
    auto* const column = new QWidget;
    stackVertically(*column, spacing, padding,
                    {
                        new HeaderArt,
                        factsBlock(),
                        controlsBlock(),
                        m_panel = new PlayPanel(m_model),
                        sheetButtons(),
                        spacer(),
                    });

    setWidget(column);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWindowTitle(tr("Cavernyx Platformer"));
    new ScreenFit(*this, leastSize);
    m_panel->playButton().setFocus();

    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ContentView::keepColumnInPlace);
    connect(m_panel, &PlayPanel::disclosed, this, &ContentView::bringIntoView);
    connect(&m_model, &AppModel::changed, this, &ContentView::refreshFacts);
    refreshFacts();
}

QWidget* ContentView::factsBlock()
{
    return verticalStack(factsSpacing,
                         {
                             m_summary = new TextLabel(TextStyle::body),
                             m_credits = new TextLabel(TextStyle::caption, {}, TextTone::secondary),
                         });
}

QWidget* ContentView::controlsBlock()
{
    return verticalStack(
        controlsSpacing,
        {
            new TextLabel(TextStyle::headline, tr("Controls")),
            verticalStack(controlsSpacing, controlRows()),
            new TextLabel(
                TextStyle::caption,
                tr("The README has no controls list (see README); these come from the game's "
                   "input settings."),
                TextTone::secondary),
        });
}

QWidget* ContentView::sheetButtons()
{
    auto* const settings = new BorderedButton(tr("Settings\u2026"));
    auto* const about = new BorderedButton(tr("About"));
    connect(settings, &QPushButton::clicked, this,
            [this] { openSheet([this] { return new SettingsView(m_model, this); }); });
    connect(about, &QPushButton::clicked, this,
            [this] { openSheet([this] { return new AboutView(this); }); });
    return horizontalStack(defaultSpacing, {settings, about, spacer()});
}

template<typename Make>
void ContentView::openSheet(Make make)
{
    if (m_sheet)
        return;
    m_sheet = make();
    m_sheet->open();
}

void ContentView::refreshFacts()
{
    const auto& facts = m_model.facts();
    m_summary->setText(shortened(facts.summary));
    m_credits->setText(shortened(facts.license) + QStringLiteral(" \u00b7 ") +
                       shortened(facts.author));
}

void ContentView::bringIntoView(QWidget* disclosed)
{
    QTimer::singleShot(0, disclosed, [this, disclosed] {
        // A layout tells the one around it by an event, and so on up to the column.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        ensureWidgetVisible(disclosed, 0, padding);
    });
}

void ContentView::keepColumnInPlace()
{
    const auto& bar = *verticalScrollBar();
    const auto room = bar.maximum() > bar.minimum() ? bar.sizeHint().width() : 0;
    auto margins = QMargins(padding, padding, padding, padding);
    if (isRightToLeft())
        margins.setLeft(padding - room);
    else
        margins.setRight(padding - room);
    widget()->layout()->setContentsMargins(margins);
}

bool ContentView::event(QEvent* event)
{
    passOnFontChange(*this, *event);
    standBackWhileBlocked(*this, *event);
    return QScrollArea::event(event);
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    // Only keys that no control under the focus has used come here.
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat() && !(event->modifiers() & ~Qt::KeypadModifier))
            m_panel->pressDefaultButton();
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
