// SPDX-License-Identifier: MIT
#include "Views/HeaderArt.h"

#include "Controls/Drawing.h"
#include "Controls/Glyphs.h"
#include "Controls/Stack.h"
#include "Controls/SystemColors.h"
#include "Controls/TextLabel.h"
#include "Controls/TypeScale.h"
#include "Project/GameFacts.h"

#include <QBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

/// The size of the symbol, and the margin around it for its shadow.
constexpr auto symbolSize = QSize(76, 56);
constexpr auto shadowRadius = 6;
constexpr auto shadowMargin = 2 * shadowRadius;

constexpr auto cornerRadius = 16;

/// Sets the colour of a text. It does not depend on the palette, and neither does the banner.
void setColor(TextLabel& text, const QColor& color)
{
    text.setWordWrap(false);
    auto colors = text.palette();
    colors.setColor(text.foregroundRole(), color);
    text.setPalette(colors);
}

QLinearGradient background(const QRectF& rect)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomRight());
    gradient.setColorAt(0, QColor::fromRgbF(0.1F, 0.12F, 0.35F));
    gradient.setColorAt(0.5, QColor::fromRgbF(0.45F, 0.2F, 0.62F));
    gradient.setColorAt(1, QColor::fromRgbF(0.95F, 0.5F, 0.35F));
    return gradient;
}

/// Returns the six platforms, centred on the bottom edge of `rect`. In a narrow banner they are cut
/// at its rounded corners.
QPainterPath silhouette(const QRectF& rect, const QPainterPath& banner)
{
    constexpr auto count = 6;
    constexpr auto spacing = 18;
    QList<QSize> sizes;
    auto width = spacing * (count - 1);
    for (auto i = 0; i < count; ++i) {
        sizes.append({i * 23 % 50 + 40, i * 17 % 34 + 10});
        width += sizes.constLast().width();
    }
    QPainterPath bars;
    auto left = rect.center().x() - width / 2.0;
    for (const auto& size : sizes) {
        const QRectF bar(QPointF(left, rect.bottom() - size.height()), size);
        bars.addPath(continuousRoundedRect(bar, 3));
        left += size.width() + spacing;
    }
    const auto reachesCorners = bars.boundingRect().left() < rect.left() + 2 * cornerRadius;
    return reachesCorners ? bars.intersected(banner) : bars; // The intersection is slow.
}

} // namespace

HeaderArt::HeaderArt()
    : m_symbolSpace(new QWidget)
{
    m_symbolSpace->setFixedSize(symbolSize);
    auto* const title = new TextLabel([] { return systemFont(30, QFont::Bold); },
                                      GameFacts::launcherName.toString());
    auto* const subtitle =
        new TextLabel(TextStyle::subheadline, GameFacts::translated(GameFacts::tagline));
    setColor(*title, Qt::white);
    setColor(*subtitle, QColor::fromRgbF(1, 1, 1, 0.85F));
    auto* const texts = verticalStack({.spacing = 2}, {title, subtitle});
    auto* const foreground =
        horizontalStack({.spacing = 14}, {m_symbolSpace, {texts, Qt::AlignCenter}});
    stackVertically(*this, {}, {{foreground, Qt::AlignCenter}});
    setFixedHeight(150);
}

void HeaderArt::paintEvent(QPaintEvent*)
{
    const auto banner = continuousRoundedRect(rect(), cornerRadius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    if (isRightToLeft())
        mirror(painter, width());
    painter.fillPath(banner, background(rect()));
    painter.fillPath(silhouette(rect(), banner), SystemColors::withOpacity(Qt::black, 0.25));
    painter.restore();
    if (SystemColors::isHighContrast(palette()))
        painter.fillPath(banner, SystemColors::withOpacity(Qt::black, 0.55));
    paintSymbol(painter);
}

void HeaderArt::paintSymbol(QPainter& painter)
{
    const auto glyph =
        Glyphs::gameController(QRectF(QPointF(shadowMargin, shadowMargin), symbolSize));
    const auto scale = devicePixelRatioF();
    if (m_symbolShadow.devicePixelRatio() != scale || m_symbolShadow.isNull()) {
        const auto size =
            symbolSize.grownBy({shadowMargin, shadowMargin, shadowMargin, shadowMargin});
        m_symbolShadow = softShadow(glyph, size, scale, shadowRadius,
                                    SystemColors::withOpacity(Qt::black, 0.33));
    }
    painter.translate(m_symbolSpace->mapTo(this, QPoint(-shadowMargin, -shadowMargin)));
    painter.drawImage(0, 0, m_symbolShadow);
    painter.fillPath(glyph, Qt::white);
}
