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

/// The space between the children of a stack, and around all of them.
struct StackLayout
{
    int spacing = defaultSpacing;
    int padding = 0;
};

/// A child of a stack: a widget that fills its cell; or, with a `side`, keeps its own size there.
struct StackItem
{
    constexpr StackItem(QWidget* child, // NOLINT(google-explicit-constructor): plain view trees
                        Qt::Alignment side = {})
        : widget(child)
        , alignment(side)
    {
    }

    QWidget* widget;
    Qt::Alignment alignment;
};

/// A flexible space.
inline constexpr StackItem spacer(nullptr);

/// Lays out `children`, which `parent` takes over, from top to bottom. A hidden child takes no
/// space, nor does the spacing before it.
void stackVertically(QWidget& parent, StackLayout layout, const QList<StackItem>& children);

/// A widget that lays out `children` from top to bottom.
[[nodiscard]] QWidget* verticalStack(StackLayout layout, const QList<StackItem>& children);

/// A widget that lays out `children` side by side, vertically centred.
[[nodiscard]] QWidget* horizontalStack(StackLayout layout, const QList<StackItem>& children);
