// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Stack.h"

#include <QScrollArea>

/// A vertical stack that scrolls if it does not fit.
class ScrollColumn : public QScrollArea
{
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

    /// The height of the whole column for a width.
    [[nodiscard]] int columnHeight(int width) const;

    /// Adds `children` with `padding` around all of them. Call it once.
    void setColumn(int spacing, const QMargins& padding, const QList<StackItem>& children);

    /// Scrolls if `event` is a scrolling key, and ignores it otherwise.
    void scrollByKey(QKeyEvent& event);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { scrollByKey(*event); }

private:
    /// Takes the width of a visible scroll bar from the padding, so that the content keeps its
    /// width.
    void reserveScrollBarSpace();

    QMargins m_padding;
};
