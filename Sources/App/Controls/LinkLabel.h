// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/TypeScale.h"

#include <QFocusFrame>
#include <QLabel>
#include <QPointer>
#include <QUrl>

/// A web address that opens in the player's browser. A click and the space bar open it; Return goes
/// to the default button of the window.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(TextStyle style, const QUrl& address);

    void open() const;

    /// The size of the address on one line: the focus ring goes around nothing else.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showAddress();

    QUrl m_address;
    /// Lies around this widget, and so belongs to the parent.
    QPointer<QFocusFrame> m_ring;
};
