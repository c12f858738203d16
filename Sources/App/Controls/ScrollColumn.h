// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Stack.h"

#include <QScrollArea>

/// A vertical stack that scrolls where it is higher than its room.
class ScrollColumn : public QScrollArea
{
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

    /// The height of the whole column at a width.
    [[nodiscard]] int columnHeight(int width) const;

    /// Lays out `children`, with `padding` around all of them.
    void setColumn(int spacing, const QMargins& padding, const QList<StackItem>& children);

    /// Scrolls as a key says that no control has used. Ignores a key that does not scroll.
    void scrollByKey(QKeyEvent& event);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { scrollByKey(*event); }

private:
    /// Takes the scroll bar's width from the padding, so that no text wraps differently when it
    /// comes and goes.
    void reserveScrollBarSpace();

    QMargins m_padding;
};
