// SPDX-License-Identifier: MIT
#include "Controls/Palettes.h"

#include "Controls/SystemColors.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

#include <memory>

using namespace Qt::StringLiterals;

namespace Palettes {

namespace {

struct Colors
{
    QColor window;
    QColor base;
    QColor button;
    QColor text;
};

QPalette makePalette(const Colors& colors)
{
    QPalette palette(colors.button, colors.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::Highlight, SystemColors::accentUnderText(palette));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    const auto faint = SystemColors::disabledText(palette);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    const auto link = SystemColors::readable(SystemColors::blue(palette), colors.window, palette);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    palette.setColor(QPalette::PlaceholderText, SystemColors::secondaryText(palette));
    return palette;
}

/// Sets the palette of the platform's theme. If it has none, Qt uses the Fusion style's; this sets
/// one of ours instead.
void applyThemePalette()
{
    QApplication::setPalette(QPalette());
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"fusion"_s));
    const auto theme = QApplication::palette();
    const auto generic = fusion->standardPalette();
    if (theme.window() == generic.window() && theme.button() == generic.button())
        QApplication::setPalette(QApplication::style()->standardPalette());
}

} // namespace

QPalette light()
{
    return makePalette({.window = QColor(244, 244, 246),
                        .base = Qt::white,
                        .button = Qt::white,
                        .text = QColor(29, 29, 31)});
}

QPalette dark()
{
    return makePalette({.window = QColor(30, 30, 32),
                        .base = QColor(22, 22, 24),
                        .button = QColor(62, 62, 66),
                        .text = QColor(240, 240, 243)});
}

QPalette highContrastLight()
{
    return makePalette(
        {.window = Qt::white, .base = Qt::white, .button = Qt::white, .text = Qt::black});
}

QPalette highContrastDark()
{
    return makePalette(
        {.window = Qt::black, .base = Qt::black, .button = Qt::black, .text = Qt::white});
}

void apply(const Appearance& wanted)
{
    applyThemePalette();
    const auto theme = QApplication::palette();
    const auto isDark = SystemColors::isDark(theme);
    const auto wantsDark = wanted.scheme == Appearance::Scheme::none
                               ? isDark
                               : wanted.scheme == Appearance::Scheme::dark;
    if (wanted.highContrast && (isDark != wantsDark || !SystemColors::isHighContrast(theme)))
        QApplication::setPalette(wantsDark ? highContrastDark() : highContrastLight());
    else if (isDark != wantsDark)
        QApplication::setPalette(wantsDark ? dark() : light());
}

} // namespace Palettes
