// SPDX-License-Identifier: MIT
#include "Views/HeaderArt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>

namespace {

constexpr auto width = 580;
constexpr auto height = 150;
/// The left edge of the row of platforms in a banner of this width.
constexpr auto firstBar = (width - 475) / 2.0;

/// The banner alone, on a transparent image.
class HeaderArtTest : public testing::Test
{
protected:
    HeaderArtTest()
    {
        art.resize(width, art.height());
        art.ensurePolished();
        picture = drawn(1, QWidget::DrawChildren);
        background = drawn(1, {});
    }

    QImage drawn(int scale, QWidget::RenderFlags flags)
    {
        QImage image(QSize(width, height) * scale, QImage::Format_ARGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        art.render(&image, {}, {}, flags);
        return image;
    }
    /// The gradient at a pixel's centre: three colours at equal distances along the diagonal.
    static QColor gradient(double x, double y)
    {
        struct Stop
        {
            double red, green, blue;
        };
        constexpr Stop stops[]{{0.1, 0.12, 0.35}, {0.45, 0.2, 0.62}, {0.95, 0.5, 0.35}};
        const auto along =
            2 * ((x + 0.5) * width + (y + 0.5) * height) / (width * width + height * height);
        const auto& from = stops[along < 1 ? 0 : 1];
        const auto& to = stops[along < 1 ? 1 : 2];
        const auto share = along < 1 ? along : along - 1;
        const auto mix = [share](double a, double b) { return float(a + (b - a) * share); };
        return QColor::fromRgbF(mix(from.red, to.red), mix(from.green, to.green),
                                mix(from.blue, to.blue));
    }
    static void expectNear(const QColor& found, const QColor& wanted, double share = 1)
    {
        EXPECT_NEAR(found.red(), wanted.red() * share, 2.5);
        EXPECT_NEAR(found.green(), wanted.green() * share, 2.5);
        EXPECT_NEAR(found.blue(), wanted.blue() * share, 2.5);
        EXPECT_EQ(found.alpha(), 255);
    }
    /// The share of the gradient's light that is left at a point of the background.
    double lightAt(const QPoint& point)
    {
        return background.pixelColor(point).redF() / gradient(point.x(), point.y()).redF();
    }
    QRect symbol()
    {
        for (auto* const widget : art.findChildren<QWidget*>()) {
            if (widget->size() == QSize(76, 56))
                return rectOf(*widget);
        }
        qFatal("The banner has no symbol.");
    }
    QLabel& text(QStringView wanted)
    {
        for (auto* const label : art.findChildren<QLabel*>()) {
            if (label->text() == wanted)
                return *label;
        }
        qFatal("A text of the banner is missing.");
    }
    QRect rectOf(const QWidget& widget)
    {
        return {widget.mapTo(&art, QPoint(0, 0)), widget.size()};
    }

    HeaderArt art;
    QImage picture;
    /// The same without the texts.
    QImage background;
};

TEST_F(HeaderArtTest, runsThroughThreeColoursFromCornerToCorner)
{
    EXPECT_EQ(art.height(), 150);
    for (const auto& at : {QPoint(20, 5), QPoint(60, 60), QPoint(10, 110), QPoint(306, 5),
                           QPoint(520, 40), QPoint(570, 80), QPoint(560, 110)}) {
        SCOPED_TRACE(testing::Message() << at.x() << ", " << at.y());
        expectNear(background.pixelColor(at), gradient(at.x(), at.y()));
    }
    expectNear(QColor::fromRgbF(0.45F, 0.2F, 0.62F), gradient(306.9, 4));
}

TEST_F(HeaderArtTest, standsSixPlatformsOnTheBottomEdge18ApartAQuarterDarker)
{
    auto left = firstBar;
    for (const auto& size : {QSize(40, 10), QSize(63, 27), QSize(86, 10), QSize(59, 27),
                             QSize(82, 10), QSize(55, 27)}) {
        SCOPED_TRACE(left);
        const auto right = left + size.width();
        const auto middle = int(left + right) / 2;
        const auto top = height - size.height();
        const auto expect = [this](double x, int y, double share) {
            expectNear(background.pixelColor(int(x), y), gradient(int(x), y), share);
        };
        expect(middle, top, 0.75);
        expect(middle, height - 1, 0.75);
        expect(middle, top - 1, 1);
        expect(left + 1, height - 5, 0.75);
        expect(left - 1, height - 5, 1);
        expect(right - 1, height - 5, 0.75);
        expect(right + 1, height - 5, 1);
        left = right + 18;
    }
}

TEST_F(HeaderArtTest, isClippedToRoundCorners)
{
    const QPoint corners[]{{0, 0}, {width - 1, 0}, {0, height - 1}, {width - 1, height - 1}};
    const QPoint inwards[]{{1, 1}, {-1, 1}, {1, -1}, {-1, -1}};
    for (auto i = 0; i < 4; ++i) {
        EXPECT_EQ(picture.pixelColor(corners[i]).alpha(), 0);
        EXPECT_EQ(picture.pixelColor(corners[i] + 3 * inwards[i]).alpha(), 0) << "radius 16";
        EXPECT_EQ(picture.pixelColor(corners[i] + 7 * inwards[i]).alpha(), 255) << "radius 16";
    }
}

TEST_F(HeaderArtTest, showsAWhiteControllerWithASoftShadowAllAround)
{
    const auto area = symbol();
    const auto at = [&](double x, double y) {
        return QPoint(area.left() + int(x * area.width()),
                      area.center().y() + int((y - 0.5) * area.height()));
    };
    EXPECT_EQ(picture.pixelColor(at(0.5, 0.4)), QColor(Qt::white));
    EXPECT_NE(picture.pixelColor(at(0.29, 0.37)), QColor(Qt::white)) << "the directional pad";

    EXPECT_LT(lightAt(at(0.5, 0.74)), 0.97) << "between the grips";
    EXPECT_LT(lightAt(at(0.5, 0.74)), lightAt(at(0.5, 0.8))) << "softer further away";
    EXPECT_NEAR(lightAt({area.left() - 2, area.center().y()}),
                lightAt({area.right() + 2, area.center().y()}), 0.06)
        << "it has no offset";
    EXPECT_LT(lightAt({area.left() - 2, area.center().y() + 8}), 0.97);
    EXPECT_NEAR(lightAt({area.left() - 14, area.center().y()}), 1, 0.02) << "radius 6";
}

TEST_F(HeaderArtTest, putsItsNameBesideTheSymbolInTheMiddle)
{
    auto& title = text(u"Cavernyx Platformer");
    auto& subtitle = text(u"A 2D grappling-hook adventure");
    EXPECT_EQ(title.font().pixelSize(), 30);
    EXPECT_EQ(title.font().weight(), QFont::Bold);
    EXPECT_EQ(title.palette().color(title.foregroundRole()), QColor(Qt::white));
    EXPECT_NEAR(subtitle.font().pointSizeF(), QApplication::font().pointSizeF() * 11 / 13, 0.01);
    EXPECT_EQ(subtitle.font().weight(), QFont::Normal);
    const auto faint = subtitle.palette().color(subtitle.foregroundRole());
    EXPECT_EQ(faint.rgb(), QColor(Qt::white).rgb());
    EXPECT_NEAR(faint.alphaF(), 0.85, 0.01);

    EXPECT_EQ(rectOf(title).left() - symbol().right() - 1, 14);
    EXPECT_EQ(rectOf(subtitle).left(), rectOf(title).left());
    EXPECT_EQ(rectOf(subtitle).top() - rectOf(title).bottom() - 1, 2);
    for (const auto* const line : {&title, &subtitle})
        EXPECT_EQ(line->height(), line->sizeHint().height()) << "no room around the words";
    const auto all = symbol().united(rectOf(title)).united(rectOf(subtitle));
    EXPECT_NEAR(all.center().x(), width / 2, 1);
    EXPECT_NEAR(all.center().y(), height / 2, 1);
}

TEST_F(HeaderArtTest, isMirroredInRightToLeftLayouts)
{
    art.setLayoutDirection(Qt::RightToLeft);
    const auto mirrored = drawn(1, {});
    for (const auto& at : {QPoint(60, 60), QPoint(520, 40), QPoint(60, height - 5)})
        expectNear(mirrored.pixelColor(width - 1 - at.x(), at.y()), background.pixelColor(at));
    EXPECT_NE(mirrored.pixelColor(60, 60), background.pixelColor(60, 60));
}

TEST_F(HeaderArtTest, isDrawnInTheFinerPixelsOfADenseScreen)
{
    // The first platform begins between two pixels of a plain screen, not of one twice as fine.
    static_assert(firstBar == 52.5);
    const auto row = height - 5;
    EXPECT_NEAR(lightAt({52, row}), 0.875, 0.03) << "half covered";
    const auto fine = drawn(2, {});
    expectNear(fine.pixelColor(104, 2 * row), gradient(51.75, row));
    expectNear(fine.pixelColor(105, 2 * row), gradient(52.25, row), 0.75);
}

} // namespace
