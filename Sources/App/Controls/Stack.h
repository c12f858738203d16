// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

inline constexpr auto defaultSpacing = 8;

/// A thin line between two groups of controls.
class Divider final : public QWidget
{
    Q_OBJECT

public:
    Divider();

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The space between the children of a stack, and around all of them, in pixels.
struct StackLayout
{
    int spacing = defaultSpacing;
    int padding = 0;
};

/// A child of a stack. Fills its cell; with an alignment it has its size hint instead.
struct StackItem
{
    constexpr StackItem(QWidget* child, // NOLINT(google-explicit-constructor): plain view trees
                        Qt::Alignment childAlignment = {})
        : widget(child)
        , alignment(childAlignment)
    {
    }

    QWidget* widget;
    Qt::Alignment alignment;
};

/// A flexible space.
inline constexpr StackItem spacer(nullptr);

/// Lays out `children` in `parent`, which takes ownership, from top to bottom. A hidden child and
/// its spacing take no space.
void stackVertically(QWidget& parent, StackLayout layout, const QList<StackItem>& children);

/// Returns a new widget with `children` from top to bottom.
[[nodiscard]] QWidget* verticalStack(StackLayout layout, const QList<StackItem>& children);

/// Returns a new widget with `children` side by side, vertically centred by default.
[[nodiscard]] QWidget* horizontalStack(StackLayout layout, const QList<StackItem>& children);
