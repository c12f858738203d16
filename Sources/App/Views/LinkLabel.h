// SPDX-License-Identifier: MIT
#pragma once

#include "Views/TypeScale.h"

#include <QLabel>
#include <QUrl>

/// A web address that is its own text and opens in the player's browser, by a click or the space
/// bar. Return is left to the window's default button.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(TextStyle style, const QUrl& address);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    TextStyle m_style;
    QUrl m_address;
};
