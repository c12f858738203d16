// SPDX-License-Identifier: MIT
#include "Views/TypeScale.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace {

/// The sizes of the scale in points, as they stand to a body of 13.
double pointsAtBody13(TextStyle style)
{
    switch (style) {
    case TextStyle::title2:
        return 17;
    case TextStyle::headline:
    case TextStyle::body:
        return 13;
    case TextStyle::callout:
        return 12;
    case TextStyle::subheadline:
        return 11;
    case TextStyle::caption:
        return 10;
    }
    Q_UNREACHABLE();
}

/// A system font is given either in points or in pixels; the one that is in use is scaled.
void scaleTo(QFont& font, const QFont& body, TextStyle style)
{
    const auto ratio = pointsAtBody13(style) / pointsAtBody13(TextStyle::body);
    if (body.pixelSize() > 0)
        font.setPixelSize(qRound(body.pixelSize() * ratio));
    else
        font.setPointSizeF(body.pointSizeF() * ratio);
}

} // namespace

QFont textFont(TextStyle style, QFont::Weight weight)
{
    const auto body = QGuiApplication::font();
    auto font = body;
    scaleTo(font, body, style);
    font.setWeight(weight);
    return font;
}

QFont textFont(TextStyle style)
{
    return textFont(style, style == TextStyle::headline ? QFont::Bold : QFont::Normal);
}

QFont monospacedFont(TextStyle style)
{
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    scaleTo(font, QGuiApplication::font(), style);
    return font;
}

QFont systemFont(int pixelSize, QFont::Weight weight)
{
    auto font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}
