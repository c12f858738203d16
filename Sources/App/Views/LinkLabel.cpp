// SPDX-License-Identifier: MIT
#include "Views/LinkLabel.h"

#include <QDesktopServices>
#include <QEvent>
#include <QKeyEvent>

LinkLabel::LinkLabel(TextStyle style, const QUrl& address)
    : m_style(style)
    , m_address(address)
{
    const auto text = address.toString(QUrl::FullyEncoded).toHtmlEscaped();
    setTextFormat(Qt::RichText);
    setText(QStringLiteral("<a href=\"%1\">%1</a>").arg(text));
    setAccessibleName(address.toString());
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setOpenExternalLinks(true);
    setFont(textFont(m_style));
}

bool LinkLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(textFont(m_style));
    return QLabel::event(event);
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore();
        return;
    case Qt::Key_Space:
        QDesktopServices::openUrl(m_address);
        return;
    default:
        QLabel::keyPressEvent(event);
    }
}
