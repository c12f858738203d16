// SPDX-License-Identifier: MIT
#include "Controls/ScrollColumn.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScrollBar>

void ScrollColumn::setColumn(int spacing, const QMargins& padding, const QList<StackItem>& children)
{
    m_padding = padding;
    auto* const column = new QWidget;
    stackVertically(*column, {.spacing = spacing}, children);
    column->layout()->setContentsMargins(padding);
    setWidget(column);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            &ScrollColumn::reserveScrollBarSpace);
}

int ScrollColumn::columnHeight(int width) const
{
    // As if there were no scroll bar.
    const auto& layout = *widget()->layout();
    const auto margins = layout.contentsMargins();
    const auto reserved = m_padding.left() + m_padding.right() - margins.left() - margins.right();
    return layout.totalHeightForWidth(width - reserved);
}

void ScrollColumn::scrollByKey(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Home:
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
        return;
    case Qt::Key_End:
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum);
        return;
    default:
        QScrollArea::keyPressEvent(&event);
    }
}

bool ScrollColumn::eventFilter(QObject* object, QEvent* event)
{
    // A scroll area does not tell its parent layout that its content has changed.
    if (object == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(object, event);
}

void ScrollColumn::reserveScrollBarSpace()
{
    const auto& bar = *verticalScrollBar();
    const auto width = bar.maximum() > bar.minimum() ? bar.sizeHint().width() : 0;
    auto padding = m_padding;
    if (isRightToLeft())
        padding.setLeft(padding.left() - width);
    else
        padding.setRight(padding.right() - width);
    widget()->layout()->setContentsMargins(padding);
}
