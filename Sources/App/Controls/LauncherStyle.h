// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// The style of the stock controls: Fusion's behaviour, drawn by ControlPainter.
///
/// Everything is drawn from the palette that the control has at that moment. There is no style
/// sheet: it would cost more at start-up than the whole window.
class LauncherStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    LauncherStyle();

    /// Without motion, whatever is animated stands still. Widgets hear of it as a change of style.
    void setReducesMotion(bool reduces);

    /// Light or dark as the platform's own theme has it.
    [[nodiscard]] QPalette standardPalette() const override;

    using QProxyStyle::polish;
    /// Sheets and alerts get an edge of their own: not every desktop draws one around them.
    void polish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returnData) const override;

private:
    bool m_reducesMotion = false;
};
