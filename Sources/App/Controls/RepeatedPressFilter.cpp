// SPDX-License-Identifier: MIT
#include "Controls/RepeatedPressFilter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace {

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// The control that `key` presses: Return is the default button's, wherever the focus is.
QWidget* pressedControl(QWidget& focused, int key)
{
    if (!isReturn(key))
        return &focused;
    const auto* const window = focused.window();
    const auto buttons = window->findChildren<QPushButton*>();
    const auto found = std::ranges::find_if(buttons, [window](const QPushButton* button) {
        return button->isDefault() && button->window() == window;
    });
    return found == buttons.end() ? nullptr : *found;
}

class RepeatedPressFilter final : public QObject
{
public:
    /// Becomes a child of `parent`.
    explicit RepeatedPressFilter(QObject& parent)
        : QObject(&parent)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Press
    {
        /// 0 for the left mouse button.
        int key = Qt::Key_unknown;
        bool isAutoRepeat = false;
        quint64 time = 0;
        QPoint position;
        QPointer<QWidget> receiver;
        /// What the press acts on: the receiver, or the default button.
        QPointer<QWidget> control;
    };

    /// Returns true if `press` is the last one again: it is sent to each parent of its receiver
    /// until one accepts it.
    [[nodiscard]] bool isPropagated(const Press& press) const;

    /// Returns true if `press` belongs to the series of the last one.
    [[nodiscard]] bool continuesSeries(const Press& press) const;
    /// Remembers `press`. Returns true if it must be ignored.
    bool handlePress(Press press);

    Press m_last;
};

} // namespace

bool RepeatedPressFilter::eventFilter(QObject* object, QEvent* event)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        return mouse.button() == Qt::LeftButton &&
               handlePress({.key = 0,
                            .time = mouse.timestamp(),
                            .position = mouse.globalPosition().toPoint(),
                            .receiver = widget,
                            .control = widget});
    }
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        return handlePress({.key = key.key(),
                            .isAutoRepeat = key.isAutoRepeat(),
                            .time = key.timestamp(),
                            .position = {},
                            .receiver = widget,
                            .control = pressedControl(*widget, key.key())});
    }
    case QEvent::EnabledChange:
    case QEvent::Hide:
        if (m_last.control == widget && !(widget->isEnabled() && widget->isVisible()))
            m_last.control = nullptr;
        return false;
    default:
        return false;
    }
}

bool RepeatedPressFilter::isPropagated(const Press& press) const
{
    return press.key == m_last.key && press.time == m_last.time && press.receiver &&
           press.receiver->isAncestorOf(m_last.receiver);
}

bool RepeatedPressFilter::continuesSeries(const Press& press) const
{
    // A player who presses a key in the next window has seen that window.
    const auto isSameWindow =
        m_last.receiver && m_last.receiver->window() == press.receiver->window();
    if (press.key != 0 && !press.isAutoRepeat && !isSameWindow)
        return false;
    const auto distance = (press.position - m_last.position).manhattanLength();
    const auto interval = static_cast<quint64>(QApplication::doubleClickInterval());
    return press.key == m_last.key && distance < QApplication::startDragDistance() &&
           (press.isAutoRepeat || press.time - m_last.time < interval);
}

bool RepeatedPressFilter::handlePress(Press press)
{
    // A press without a time is made by the program.
    if (press.time == 0 || isPropagated(press))
        return false;
    const auto isPress = press.key == 0 || press.key == Qt::Key_Space || isReturn(press.key);
    const auto isIgnored = isPress && continuesSeries(press) && press.control != m_last.control;
    if (isIgnored)
        press.control = m_last.control;
    m_last = press;
    return isIgnored;
}

void ignoreRepeatedPresses(QObject& parent)
{
    new RepeatedPressFilter(parent);
}
