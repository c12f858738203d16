// SPDX-License-Identifier: MIT
#pragma once

#include "Views/TypeScale.h"

#include <QFocusFrame>
#include <QLabel>
#include <QPointer>
#include <QUrl>

/// A web address that is its own text and opens in the player's browser, by a click or the space
/// bar. Return is left to the window's default button.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(TextStyle style, const QUrl& address);

    /// Opens the address in the player's browser.
    void open() const;

    /// As wide as the address on one line, so that the focus ring goes around nothing else.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// Shows the address in the link colour of the moment.
    void showAddress();

    TextStyle m_style;
    QUrl m_address;
    /// Belongs to the parent, as what lies around this widget does.
    QPointer<QFocusFrame> m_ring;
};
