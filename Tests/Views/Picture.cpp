// SPDX-License-Identifier: MIT
#include "Views/Picture.h"

#include "Views/LauncherStyle.h"

#include <QDir>
#include <QPainter>
#include <QSet>

#include <algorithm>
#include <ostream>

namespace {

/// What a detail shows around its widget.
constexpr auto detailMargin = 12;

/// How many different colours a picture has.
qsizetype colorCount(const QImage& picture)
{
    QSet<QRgb> colors;
    for (auto y = 0; y < picture.height(); ++y) {
        for (auto x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return colors.size();
}

} // namespace

void PrintTo(Theme theme, std::ostream* stream)
{
    *stream << (theme == Theme::dark ? "dark" : "light");
}

Picture::Picture(Theme theme)
    : m_theme(theme)
{
    QApplication::setPalette(theme == Theme::dark ? LauncherStyle::darkPalette()
                                                  : LauncherStyle::lightPalette());
}

Picture::~Picture()
{
    QApplication::setPalette(LauncherStyle::lightPalette());
}

void Picture::showAll()
{
    // At a fine scale the screen is a small one, and the minimum no more than that.
    window().setMinimumSize(ContentView::leastSize);
    settle();
    window().resize(window().width(), window().widget()->height());
    settle();
}

void Picture::save(QWidget& widget, const std::string& name) const
{
    settle();
    const auto picture = widget.grab().toImage();
    EXPECT_EQ(picture.size(), (QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize());
    write(picture, name);
}

void Picture::save(const QList<QImage>& details, const std::string& name) const
{
    QSize size(0, 0);
    for (const auto& detail : details)
        size = {std::max(size.width(), detail.width()), size.height() + detail.height()};
    QImage picture(size, QImage::Format_RGB32);
    picture.setDevicePixelRatio(details.constFirst().devicePixelRatio());
    picture.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&picture);
    for (const auto& detail : details) {
        painter.drawImage(0, 0, detail);
        painter.translate(0, detail.deviceIndependentSize().height());
    }
    painter.end();
    write(picture, name);
}

QImage Picture::detail(QWidget& widget)
{
    settle();
    auto& whole = *widget.window();
    const auto around =
        place(widget).adjusted(-detailMargin, -detailMargin, detailMargin, detailMargin);
    return whole.grab(around & whole.rect()).toImage();
}

void Picture::write(const QImage& picture, const std::string& name) const
{
    EXPECT_GT(colorCount(picture), 30) << "next to nothing is drawn";
    const QDir folder(QStringLiteral(GALLERY_FOLDER));
    EXPECT_TRUE(folder.mkpath(QStringLiteral(".")));
    const auto file =
        QStringLiteral("%1-%2-%3x.png")
            .arg(QString::fromStdString(name),
                 m_theme == Theme::dark ? QStringLiteral("dark") : QStringLiteral("light"))
            .arg(picture.devicePixelRatioF());
    EXPECT_TRUE(picture.save(folder.filePath(file)));
}
