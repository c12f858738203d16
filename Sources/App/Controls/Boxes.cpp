// SPDX-License-Identifier: MIT
#include "Controls/Boxes.h"

#include "Controls/ControlPainter.h"
#include "Controls/LongTextEdit.h"
#include "Controls/Stack.h"
#include "Controls/SystemColors.h"
#include "Controls/TypeScale.h"

#include <QEvent>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr auto cornerRadius = 6;

} // namespace

RoundedBox::RoundedBox(double radius, Tint tint)
    : m_radius(radius)
    , m_tint(tint)
{
}

void RoundedBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ControlPainter::paintTintedBox(painter, rect(), m_radius, m_tint(palette()), palette());
}

TextBox::TextBox(const QString& name, int height, Tint tint)
    : RoundedBox(cornerRadius, tint)
    , m_edit(new LongTextEdit)
{
    m_edit->setAccessibleName(name);
    m_edit->setTabChangesFocus(true);
    m_edit->setFrameShape(QFrame::NoFrame);
    m_edit->document()->setDocumentMargin(0);
    m_edit->viewport()->setAutoFillBackground(false);
    followFont(*m_edit, [] { return monospacedFont(TextStyle::caption); });
    m_edit->setFixedHeight(height);
    m_edit->installEventFilter(this);
    stackVertically(*this, {.padding = 6}, {m_edit});
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
    const auto& colors = palette();
    if (m_edit->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        ControlPainter::paintFocusRing(painter, rect(), cornerRadius,
                                       SystemColors::focusRing(colors));
    } else if (SystemColors::isDark(colors) && !SystemColors::isHighContrast(colors)) {
        // The tint is hardly visible in dark mode.
        ControlPainter::paintRoundedRect(
            painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
            SystemColors::withOpacity(colors.color(QPalette::WindowText), 0.08), Qt::NoBrush);
    }
}
