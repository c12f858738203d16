// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMargins>

class QWidget;

/// The space between the children of a stack that names none of its own.
inline constexpr auto defaultSpacing = 8;

/// One child of a stack: a widget, or a space that takes all that the others leave.
class StackItem final
{
public:
    /// A widget that fills its place, or takes no more than it needs on one side of it.
    StackItem(QWidget* widget, // NOLINT(google-explicit-constructor): keeps a view tree readable
              Qt::Alignment alignment = {})
        : m_widget(widget)
        , m_alignment(alignment)
    {
    }

    /// Nothing for a space.
    [[nodiscard]] QWidget* widget() const { return m_widget; }
    [[nodiscard]] Qt::Alignment alignment() const { return m_alignment; }

private:
    QWidget* m_widget;
    Qt::Alignment m_alignment;
};

/// No wider than it needs to be, where a line of text begins.
[[nodiscard]] inline StackItem leading(QWidget* widget)
{
    return {widget, Qt::AlignLeading};
}

/// No higher than it needs to be, at the top.
[[nodiscard]] inline StackItem top(QWidget* widget)
{
    return {widget, Qt::AlignTop};
}

/// No larger than it needs to be, in the middle.
[[nodiscard]] inline StackItem centred(QWidget* widget)
{
    return {widget, Qt::AlignCenter};
}

/// What takes all the room that the others leave.
[[nodiscard]] inline StackItem spacer()
{
    return {nullptr};
}

/// Lays `children` out under each other in `parent`, which becomes theirs. `padding` goes around
/// all of them. A hidden child takes no space, nor does the spacing before it.
void stackVertically(QWidget& parent, int spacing, int padding, const QList<StackItem>& children);
void stackVertically(QWidget& parent, int spacing, QMargins padding,
                     const QList<StackItem>& children);

/// A widget that shows nothing but its children, under each other, `spacing` apart.
[[nodiscard]] QWidget* verticalStack(int spacing, const QList<StackItem>& children);

/// A widget that shows nothing but its children, side by side and centred on one line.
[[nodiscard]] QWidget* horizontalStack(int spacing, const QList<StackItem>& children);
