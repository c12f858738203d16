// SPDX-License-Identifier: MIT
#include "Views/Stack.h"

#include <QBoxLayout>
#include <QWidget>

namespace {

void fill(QBoxLayout& layout, int spacing, int padding, std::initializer_list<StackItem> children)
{
    layout.setSpacing(spacing);
    layout.setContentsMargins(padding, padding, padding, padding);
    for (const auto& child : children) {
        if (child.widget())
            layout.addWidget(child.widget());
        else
            layout.addStretch();
    }
}

} // namespace

void stackVertically(QWidget& parent, int spacing, int padding,
                     std::initializer_list<StackItem> children)
{
    fill(*new QVBoxLayout(&parent), spacing, padding, children);
}

QWidget* verticalStack(int spacing, std::initializer_list<StackItem> children)
{
    auto* const stack = new QWidget;
    stackVertically(*stack, spacing, 0, children);
    return stack;
}

QWidget* horizontalStack(int spacing, std::initializer_list<StackItem> children)
{
    auto* const stack = new QWidget;
    fill(*new QHBoxLayout(stack), spacing, 0, children);
    return stack;
}
