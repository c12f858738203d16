// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

class QWidget;

/// The space between the children of a stack that names none of its own.
inline constexpr auto defaultSpacing = 8;

/// One child of a stack: a widget, or a space that takes all that the others leave.
class StackItem final
{
public:
    StackItem(QWidget* widget) // NOLINT(google-explicit-constructor): keeps a view tree readable
        : m_widget(widget)
    {
    }
    [[nodiscard]] static StackItem spacer() { return {nullptr}; }

    /// Nothing for the spacer.
    [[nodiscard]] QWidget* widget() const { return m_widget; }

private:
    QWidget* m_widget;
};

/// Lays `children` out under each other in `parent`, which becomes theirs. `padding` goes around
/// all of them. A hidden child takes no space, nor does the spacing before it.
void stackVertically(QWidget& parent, int spacing, int padding,
                     std::initializer_list<StackItem> children);

/// A widget that shows nothing but its children, under each other, `spacing` apart.
[[nodiscard]] QWidget* verticalStack(int spacing, std::initializer_list<StackItem> children);

/// A widget that shows nothing but its children, side by side and centred on one line.
[[nodiscard]] QWidget* horizontalStack(int spacing, std::initializer_list<StackItem> children);
