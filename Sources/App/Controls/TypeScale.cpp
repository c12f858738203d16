// SPDX-License-Identifier: MIT
#include "Controls/TypeScale.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QWidget>

namespace {

/// The size of `style` in points if body has 13.
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

/// Sets the size of `font`, in the unit that the application's font has.
void setSize(QFont& font, TextStyle style)
{
    const auto body = QGuiApplication::font();
    const auto ratio = pointsAtBody13(style) / pointsAtBody13(TextStyle::body);
    if (body.pixelSize() > 0)
        font.setPixelSize(qRound(body.pixelSize() * ratio));
    else
        font.setPointSizeF(body.pointSizeF() * ratio);
}

class FontChangeFilter final : public QObject
{
public:
    FontChangeFilter(QWidget& widget, std::function<QFont()> font)
        : QObject(&widget)
        , m_font(std::move(font))
    {
        widget.setFont(m_font());
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationFontChange)
            static_cast<QWidget*>(object)->setFont(m_font());
        return false;
    }

private:
    std::function<QFont()> m_font;
};

} // namespace

QFont textFont(TextStyle style, QFont::Weight weight)
{
    auto font = QGuiApplication::font();
    setSize(font, style);
    font.setWeight(weight);
    return font;
}

QFont textFont(TextStyle style)
{
    const auto isBold = style == TextStyle::title2 || style == TextStyle::headline;
    return textFont(style, isBold ? QFont::Bold : QFont::Normal);
}

QFont monospacedFont(TextStyle style)
{
    auto font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    setSize(font, style);
    return font;
}

QFont systemFont(int pixelSize, QFont::Weight weight)
{
    auto font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

void followFont(QWidget& widget, const std::function<QFont()>& font)
{
    new FontChangeFilter(widget, font);
}

void propagateFontChange(const QWidget& window, const QEvent& event)
{
    if (event.type() != QEvent::ApplicationFontChange)
        return;
    const auto widgets = window.findChildren<QWidget*>();
    for (auto* const widget : widgets) {
        QEvent copy(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(widget, &copy);
    }
}
