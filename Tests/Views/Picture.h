// SPDX-License-Identifier: MIT
#pragma once

#include "Views/ViewTest.h"

#include <QImage>
#include <QList>

#include <string>

enum class Theme { light, dark };

void PrintTo(Theme theme, std::ostream* stream);

/// The window in one theme, and pictures of it for the folder `gallery` of the build. The program
/// is run once for each scale.
class Picture : public ViewTest
{
protected:
    explicit Picture(Theme theme,
                     std::chrono::milliseconds startupThreshold = std::chrono::milliseconds{20});

    /// Enters `downloading` with a part of the engine's archive. The rate in the picture is always
    /// the same.
    void showDownload();

    /// Makes the window as high as its content.
    void showAll();
    /// Saves a picture of `widget` and checks its size at the scale of the screen.
    void save(QWidget& widget, const std::string& name) const;
    /// Saves pictures below each other.
    void save(const QList<QImage>& details, const std::string& name) const;
    /// A picture of `widget` and a margin around it.
    static QImage detail(QWidget& widget);

private:
    void write(const QImage& picture, const std::string& name) const;

    Theme m_theme;
};
