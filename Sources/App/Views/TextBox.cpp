// SPDX-License-Identifier: MIT
#include "Views/TextBox.h"

#include "Views/ControlFace.h"
#include "Views/LongTextEdit.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TypeScale.h"

#include <QEvent>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr auto cornerRadius = 6;
constexpr auto padding = 6;

} // namespace

TextBox::TextBox(const QString& name, int height, Tint tint)
    : RoundedBox(cornerRadius, tint)
    , m_edit(new LongTextEdit)
{
    m_edit->setAccessibleName(name);
    m_edit->setTabChangesFocus(true);
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->document()->setDocumentMargin(0);
    m_edit->viewport()->setAutoFillBackground(false);
    m_edit->setFont(monospacedFont(TextStyle::caption));
    m_edit->setFixedHeight(height);
    m_edit->installEventFilter(this);
    stackVertically(*this, 0, padding, {m_edit});
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TextBox::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_edit->removeFirstLines(m_edit->lineCount());
    m_edit->appendLines(text.split(u'\n'));
}

bool TextBox::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        m_edit->setFont(monospacedFont(TextStyle::caption));
    return RoundedBox::event(event);
}

bool TextBox::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return RoundedBox::eventFilter(object, event);
}

void TextBox::paintEvent(QPaintEvent* event)
{
    RoundedBox::paintEvent(event);
    QPainter painter(this);
    if (m_edit->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        ControlFace::paintFocusRing(painter, rect(), cornerRadius, SystemColors::blue(palette()));
        return;
    }
    if (!SystemColors::isDark(palette()))
        return;
    // There the tint alone would hardly tell where the box ends.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(SystemColors::withOpacity(palette().color(QPalette::WindowText), 0.08));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}
