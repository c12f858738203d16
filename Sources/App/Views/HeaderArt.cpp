// SPDX-License-Identifier: MIT
#include "Views/HeaderArt.h"

#include "Views/ContinuousCorners.h"
#include "Views/Glyphs.h"
#include "Views/Mirroring.h"
#include "Views/SoftShadow.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TextLabel.h"
#include "Views/TypeScale.h"

#include <QBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr auto bannerHeight = 150;
constexpr auto bannerRadius = 16;
constexpr auto barCount = 6;
constexpr auto barSpacing = 18;
constexpr auto barRadius = 3;
constexpr auto foregroundSpacing = 14;
constexpr auto textSpacing = 2;
constexpr auto titleSize = 30;
/// The symbol at a font size of 56 is this large, and the room its shadow may take around it.
constexpr auto symbolSize = QSize(76, 56);
constexpr auto shadowRadius = 6;
constexpr auto shadowMargin = 2 * shadowRadius;

/// The texts keep their colours on the banner, in light and dark alike.
QWidget* tinted(TextLabel* text, const QColor& color)
{
    text->setWordWrap(false);
    auto colors = text->palette();
    colors.setColor(text->foregroundRole(), color);
    text->setPalette(colors);
    return text;
}

QLinearGradient background(const QRectF& rect)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomRight());
    gradient.setColorAt(0, QColor::fromRgbF(0.1F, 0.12F, 0.35F));
    gradient.setColorAt(0.5, QColor::fromRgbF(0.45F, 0.2F, 0.62F));
    gradient.setColorAt(1, QColor::fromRgbF(0.95F, 0.5F, 0.35F));
    return gradient;
}

/// The platforms, centred and standing on the bottom edge of `rect`.
QPainterPath silhouette(const QRectF& rect)
{
    const auto sizes = HeaderArt::barSizes();
    auto width = barSpacing * (barCount - 1);
    for (const auto& size : sizes)
        width += size.width();

    QPainterPath bars;
    auto left = rect.center().x() - width / 2.0;
    for (const auto& size : sizes) {
        const QRectF bar(QPointF(left, rect.bottom() - size.height()), size);
        bars.addPath(continuousRoundedRect(bar, barRadius));
        left += size.width() + barSpacing;
    }
    return bars;
}

} // namespace

HeaderArt::HeaderArt()
    : m_symbolPlace(new QWidget)
{
    m_symbolPlace->setFixedSize(symbolSize);
    auto* const title = new TextLabel(titleSize, QFont::Bold, tr("Cavernyx Platformer"));
    auto* const subtitle =
        new TextLabel(TextStyle::subheadline, tr("A 2D grappling-hook adventure"));
    auto* const texts =
        verticalStack(textSpacing, {
                                       tinted(title, Qt::white),
                                       tinted(subtitle, QColor::fromRgbF(1, 1, 1, 0.85F)),
                                   });
    auto* const foreground = horizontalStack(foregroundSpacing, {m_symbolPlace, centred(texts)});
    stackVertically(*this, 0, 0, {centred(foreground)});
    setFixedHeight(bannerHeight);
}

QList<QSize> HeaderArt::barSizes()
{
    QList<QSize> sizes;
    for (auto i = 0; i < barCount; ++i)
        sizes.append({i * 23 % 50 + 40, i * 17 % 34 + 10});
    return sizes;
}

void HeaderArt::paintEvent(QPaintEvent*)
{
    const auto banner = continuousRoundedRect(rect(), bannerRadius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    if (isRightToLeft())
        mirror(painter, width());
    painter.fillPath(banner, background(rect()));
    // Too narrow a banner would let the outer platforms reach past its corners.
    painter.fillPath(silhouette(rect()).intersected(banner),
                     SystemColors::withOpacity(Qt::black, 0.25));
    painter.restore();
    paintSymbol(painter);
}

void HeaderArt::paintSymbol(QPainter& painter)
{
    const auto glyph =
        Glyphs::gameController(QRectF(QPointF(shadowMargin, shadowMargin), symbolSize));
    const auto scale = devicePixelRatioF();
    if (m_symbolShadow.devicePixelRatio() != scale || m_symbolShadow.isNull()) {
        const auto room =
            symbolSize.grownBy({shadowMargin, shadowMargin, shadowMargin, shadowMargin});
        m_symbolShadow = softShadow(glyph, room, scale, shadowRadius,
                                    SystemColors::withOpacity(Qt::black, 0.33));
    }
    painter.translate(m_symbolPlace->mapTo(this, QPoint(-shadowMargin, -shadowMargin)));
    painter.drawImage(0, 0, m_symbolShadow);
    painter.fillPath(glyph, Qt::white);
}
