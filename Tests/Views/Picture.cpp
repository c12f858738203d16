// SPDX-License-Identifier: MIT
#include "Views/Picture.h"

#include "Install/DownloadProgress.h"

#include <QDir>
#include <QPainter>
#include <QSet>
#include <QVariantAnimation>

#include <algorithm>
#include <ostream>

namespace {

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

Picture::Picture(Theme theme, std::chrono::milliseconds startupThreshold)
    : ViewTest(startupThreshold)
    , m_theme(theme)
{
    QApplication::setPalette(theme == Theme::dark ? Palettes::dark() : Palettes::light());
}

void Picture::showDownload()
{
    enterDownload(7'300'000, 70'100'000);
    settle();
    label(model().progressText())
        ->setText(DownloadProgress{
            .received = 7'300'000, .total = 70'100'000, .bytesPerSecond = 2'400'000}
                      .text());
}

void Picture::showAll()
{
    // The picture does not depend on how far the travelling piece of the progress bar has come.
    auto& travel = *progress().findChild<QVariantAnimation*>();
    travel.stop();
    travel.setCurrentTime(0);
    // At a large scale the screen counts as small, and limits the minimum size.
    window().setMinimumSize(ContentView::minSize);
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
    return whole.grab(rectOf(widget).adjusted(-12, -12, 12, 12) & whole.rect()).toImage();
}

void Picture::write(const QImage& picture, const std::string& name) const
{
    EXPECT_GT(colorCount(picture), 30) << "next to nothing is drawn";
    const QDir folder(QStringLiteral(GALLERY_FOLDER));
    EXPECT_TRUE(folder.mkpath(u"."_s));
    const auto file =
        u"%1-%2-%3x.png"_s
            .arg(QString::fromStdString(name), m_theme == Theme::dark ? u"dark"_s : u"light"_s)
            .arg(picture.devicePixelRatioF());
    EXPECT_TRUE(picture.save(folder.filePath(file)));
}
