// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/TypeScale.h"

#include <QFocusFrame>
#include <QLabel>
#include <QPointer>
#include <QUrl>

/// A web address. A click or the space bar opens it in the player's browser; Return presses the
/// default button of the window.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(TextStyle style, const QUrl& address);

    void open() const;

    /// The size of the address on one line, so that the focus ring encloses nothing else.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showAddress();

    QUrl m_address;
    /// A child of this label's parent, since it is larger than the label.
    QPointer<QFocusFrame> m_ring;
};
