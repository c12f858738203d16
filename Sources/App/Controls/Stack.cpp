// SPDX-License-Identifier: MIT
#include "Controls/Stack.h"

#include "Controls/SystemColors.h"

#include <QBoxLayout>
#include <QPainter>

namespace {

void fill(QBoxLayout& box, StackLayout layout, const QList<StackItem>& children)
{
    box.setSpacing(layout.spacing);
    box.setContentsMargins(layout.padding, layout.padding, layout.padding, layout.padding);
    const auto isRow = box.direction() != QBoxLayout::TopToBottom;
    for (const auto& child : children) {
        const auto fallback = isRow ? Qt::AlignVCenter : Qt::Alignment();
        if (child.widget)
            box.addWidget(child.widget, 0, child.alignment ? child.alignment : fallback);
        else
            box.addStretch();
    }
}

} // namespace

Divider::Divider()
{
    setFixedHeight(1);
}

void Divider::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), SystemColors::line(palette()));
}

void stackVertically(QWidget& parent, StackLayout layout, const QList<StackItem>& children)
{
    fill(*new QVBoxLayout(&parent), layout, children);
}

QWidget* verticalStack(StackLayout layout, const QList<StackItem>& children)
{
    auto* const stack = new QWidget;
    stackVertically(*stack, layout, children);
    return stack;
}

QWidget* horizontalStack(StackLayout layout, const QList<StackItem>& children)
{
    auto* const stack = new QWidget;
    fill(*new QHBoxLayout(stack), layout, children);
    return stack;
}
