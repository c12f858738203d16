// SPDX-License-Identifier: MIT
#include "Controls/SystemColors.h"

#include <algorithm>
#include <cmath>

namespace SystemColors {

namespace {

/// The minimum contrast of text: WCAG level AA, and in high contrast level AAA.
double minContrast(const QPalette& palette)
{
    // Slightly above 7, since colours are rounded.
    return isHighContrast(palette) ? 7.1 : 4.5;
}

constexpr auto panelOpacity = 0.08;

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// Returns `color` mixed with just enough of `admixture` for the `wanted` contrast to `other`.
QColor mixed(const QColor& color, const QColor& admixture, const QColor& other, double wanted)
{
    for (auto percent = 0; percent < 100; percent += 2) {
        const auto candidate = blended(withOpacity(admixture, percent / 100.0), color);
        if (contrast(candidate, other) >= wanted)
            return candidate;
    }
    return admixture;
}

/// The text colour at the lowest opacity from `minPercent` that is readable on the window and on
/// its panels.
QColor fadedText(const QPalette& palette, int minPercent)
{
    const auto window = palette.color(QPalette::Window);
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    for (auto percent = minPercent; percent < 100; ++percent) {
        const auto opacity = percent / 100.0;
        const auto candidate = withOpacity(text, opacity);
        const auto panel = blended(withOpacity(text, opacity * panelOpacity), window);
        if (contrast(blended(candidate, panel), panel) >= minContrast(palette) &&
            contrast(blended(candidate, window), window) >= minContrast(palette))
            return candidate;
    }
    return text;
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

bool isHighContrast(const QPalette& palette)
{
    return contrast(palette.color(QPalette::Active, QPalette::WindowText),
                    palette.color(QPalette::Active, QPalette::Window)) > 20;
}

QColor blue(const QPalette& palette)
{
    return isDark(palette) ? QColor(10, 132, 255) : QColor(0, 122, 255);
}

QColor green(const QPalette& palette)
{
    return isDark(palette) ? QColor(50, 215, 75) : QColor(40, 205, 65);
}

QColor orange(const QPalette& palette)
{
    return isDark(palette) ? QColor(255, 159, 10) : QColor(255, 149, 0);
}

QColor red(const QPalette& palette)
{
    return isDark(palette) ? QColor(255, 69, 58) : QColor(255, 59, 48);
}

QColor gray(const QPalette& palette)
{
    return isDark(palette) ? QColor(152, 152, 157) : QColor(142, 142, 147);
}

QColor secondaryText(const QPalette& palette)
{
    return fadedText(palette, isHighContrast(palette) ? 85 : 55);
}

QColor disabledText(const QPalette& palette)
{
    return isHighContrast(palette)
               ? fadedText(palette, 55)
               : withOpacity(palette.color(QPalette::Active, QPalette::WindowText), 0.38);
}

QColor panel(const QPalette& palette)
{
    const auto secondary = secondaryText(palette);
    return withOpacity(secondary, secondary.alphaF() * panelOpacity);
}

QColor edge(const QPalette& palette, bool isEnabled)
{
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    if (isHighContrast(palette))
        return isEnabled ? text : disabledText(palette);
    return withOpacity(text, isEnabled ? 0.22 : 0.12);
}

QColor focusRing(const QPalette& palette)
{
    return isHighContrast(palette)
               ? readable(blue(palette), palette.color(QPalette::Window), palette)
               : blue(palette);
}

QColor line(const QPalette& palette)
{
    const auto text = palette.color(QPalette::WindowText);
    return isHighContrast(palette) ? text : withOpacity(text, 0.14);
}

QColor withOpacity(const QColor& color, double opacity)
{
    auto result = color;
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

QColor blended(const QColor& color, const QColor& background)
{
    const auto mix = [share = color.alphaF()](float front, float back) {
        return front * share + back * (1 - share);
    };
    return QColor::fromRgbF(mix(color.redF(), background.redF()),
                            mix(color.greenF(), background.greenF()),
                            mix(color.blueF(), background.blueF()));
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readable(const QColor& color, const QColor& background, const QPalette& palette)
{
    return mixed(color, palette.color(QPalette::WindowText), background, minContrast(palette));
}

QColor accentUnderText(const QPalette& palette)
{
    return mixed(blue(palette), Qt::black, Qt::white, minContrast(palette));
}

} // namespace SystemColors
