// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// The style of Qt's controls: the Fusion style, drawn by ControlPainter with the colours of the
/// current palette. A style sheet would take longer to load than the whole window.
class LauncherStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    LauncherStyle();

    /// Switches animations off or on. Sends QEvent::StyleChange to all widgets if that is a change.
    void setReducesMotion(bool reduces);

    /// Light or dark like the palette of the platform's theme.
    [[nodiscard]] QPalette standardPalette() const override;

    using QProxyStyle::polish;
    /// Gives dialogs an edge, since not every desktop draws one.
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
