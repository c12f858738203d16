// SPDX-License-Identifier: MIT
#include "Views/PlayButton.h"

#include "Views/ControlFace.h"
#include "Views/Glyphs.h"
#include "Views/ReturnKey.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TypeScale.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr auto fontSize = 24;
constexpr auto leastLabelHeight = 44;
/// What a large control adds around its label.
constexpr auto padding = 4;
constexpr auto cornerRadius = 9.0;
constexpr auto glyphSize = QSizeF(16, 18);

} // namespace

PlayButton::PlayButton()
    : QPushButton(tr("Play"))
{
    setFont(systemFont(fontSize, QFont::Bold));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setDefault(true);
    leaveReturnToWindow(*this);
}

QSize PlayButton::sizeHint() const
{
    const auto label = fontMetrics().size(Qt::TextSingleLine, text());
    const auto width = label.width() + qRound(glyphSize.width()) + defaultSpacing;
    return {width + 4 * padding, std::max(label.height(), leastLabelHeight) + 2 * padding};
}

bool PlayButton::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(systemFont(fontSize, QFont::Bold));
    return QPushButton::event(event);
}

void PlayButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Letters as large and bold as these are read well on the accent colour as it is.
    ControlFace::paintProminent(painter, rect(), option.state, palette(),
                                SystemColors::blue(palette()), cornerRadius);
    paintLabel(painter, ControlFace::prominentText(option.state, palette()));
}

void PlayButton::paintLabel(QPainter& painter, const QColor& color) const
{
    const auto textWidth = fontMetrics().horizontalAdvance(text());
    const auto width = glyphSize.width() + defaultSpacing + textWidth;
    QRectF glyph(QPointF((this->width() - width) / 2, (height() - glyphSize.height()) / 2),
                 glyphSize);
    QRectF label(glyph.right() + defaultSpacing, 0, textWidth + 1, height());
    if (isRightToLeft()) {
        label.moveLeft((this->width() - width) / 2);
        glyph.moveLeft(label.left() + textWidth + defaultSpacing);
    }
    painter.fillPath(Glyphs::play(glyph), color);
    painter.setPen(color);
    painter.drawText(label, Qt::AlignVCenter | Qt::TextSingleLine, text());
}
