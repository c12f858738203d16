// SPDX-License-Identifier: MIT
#include "Views/LinkLabel.h"

#include "Views/ReturnKey.h"

#include <QDesktopServices>
#include <QEvent>
#include <QKeyEvent>

LinkLabel::LinkLabel(TextStyle style, const QUrl& address)
    : m_style(style)
    , m_address(address)
{
    setTextFormat(Qt::RichText);
    showAddress();
    setAccessibleName(address.toString());
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setOpenExternalLinks(true);
    setWordWrap(true);
    setFont(textFont(m_style));
    leaveReturnToWindow(*this);
}

QSize LinkLabel::sizeHint() const
{
    return fontMetrics().size(Qt::TextSingleLine, m_address.toString());
}

bool LinkLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(textFont(m_style));
    else if (event->type() == QEvent::PaletteChange)
        showAddress();
    return QLabel::event(event);
}

void LinkLabel::showAddress()
{
    const auto text = m_address.toString(QUrl::FullyEncoded).toHtmlEscaped();
    // The colour is taken from the palette when the text is set, and only when it is another one.
    setText({});
    setText(QStringLiteral("<a href=\"%1\">%1</a>").arg(text));
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        open();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::open() const
{
    QDesktopServices::openUrl(m_address);
}

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    if (m_ring || !window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    m_ring = new QFocusFrame(parentWidget());
    m_ring->setWidget(this);
}

void LinkLabel::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    delete m_ring;
}

bool LinkLabel::focusNextPrevChild(bool next)
{
    // A label stops at each of its links as well as at itself. This one is its link.
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): on purpose
}
