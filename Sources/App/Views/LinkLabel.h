// SPDX-License-Identifier: MIT
#pragma once

#include "Views/TypeScale.h"

#include <QLabel>

class QUrl;

/// A web address that is its own text and opens in the player's browser, by the mouse or the
/// keyboard.
class LinkLabel final : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(TextStyle style, const QUrl& address);

protected:
    bool event(QEvent* event) override;

private:
    TextStyle m_style;
};
