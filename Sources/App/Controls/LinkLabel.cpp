// SPDX-License-Identifier: MIT
#include "Controls/LinkLabel.h"

#include "Controls/Buttons.h"

#include <QAccessibleWidget>
#include <QDesktopServices>
#include <QEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

/// Assistive technology can press it, unlike a label.
class AccessibleLink final : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel& link)
        : QAccessibleWidget(&link, QAccessible::Link)
    {
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            static_cast<LinkLabel*>(widget())->open();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* const link = qobject_cast<LinkLabel*>(object);
    return link ? new AccessibleLink(*link) : nullptr;
}

} // namespace

LinkLabel::LinkLabel(TextStyle style, const QUrl& address)
    : m_address(address)
{
    QAccessible::installFactory(makeInterface); // Qt keeps it once.
    setTextFormat(Qt::RichText);
    showAddress();
    setAccessibleName(address.toString());
    // With LinksAccessibleByKeyboard, Tab would stop twice, at the label and at its link.
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::StrongFocus);
    setOpenExternalLinks(true);
    setWordWrap(true);
    followFont(*this, [style] { return textFont(style); });
    forwardReturnKey(*this);
}

QSize LinkLabel::sizeHint() const
{
    return fontMetrics().size(Qt::TextSingleLine, m_address.toString());
}

bool LinkLabel::event(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        showAddress();
    return QLabel::event(event);
}

void LinkLabel::showAddress()
{
    const auto text = m_address.toString(QUrl::FullyEncoded).toHtmlEscaped();
    // QLabel updates the link colour only if the text changes.
    setText({});
    setText(u"<a href=\"%1\">%1</a>"_s.arg(text));
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
