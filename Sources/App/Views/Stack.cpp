// SPDX-License-Identifier: MIT
#include "Views/Stack.h"

#include <QBoxLayout>
#include <QWidget>

namespace {

void fill(QBoxLayout& layout, int spacing, QMargins padding, const QList<StackItem>& children)
{
    layout.setSpacing(spacing);
    layout.setContentsMargins(padding);
    for (const auto& child : children) {
        if (child.widget())
            layout.addWidget(child.widget(), 0, child.alignment());
        else
            layout.addStretch();
    }
}

} // namespace

void stackVertically(QWidget& parent, int spacing, int padding, const QList<StackItem>& children)
{
    stackVertically(parent, spacing, QMargins(padding, padding, padding, padding), children);
}

void stackVertically(QWidget& parent, int spacing, QMargins padding,
                     const QList<StackItem>& children)
{
    fill(*new QVBoxLayout(&parent), spacing, padding, children);
}

QWidget* verticalStack(int spacing, const QList<StackItem>& children)
{
    auto* const stack = new QWidget;
    stackVertically(*stack, spacing, 0, children);
    return stack;
}

QWidget* horizontalStack(int spacing, const QList<StackItem>& children)
{
    auto* const stack = new QWidget;
    fill(*new QHBoxLayout(stack), spacing, {}, children);
    return stack;
}
