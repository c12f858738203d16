// SPDX-License-Identifier: MIT
#include "Views/LinkLabel.h"

#include <QEvent>
#include <QUrl>

LinkLabel::LinkLabel(TextStyle style, const QUrl& address)
    : m_style(style)
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
