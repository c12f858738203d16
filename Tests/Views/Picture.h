// SPDX-License-Identifier: MIT
#pragma once

#include "Views/ViewTest.h"

#include <QImage>
#include <QList>

#include <iosfwd>
#include <string>

enum class Theme { light, dark };

void PrintTo(Theme theme, std::ostream* stream);

/// The window in one theme, and what is photographed of it: pictures to be looked at, in the folder
/// `gallery` of the build. The scale is the platform's; the program is run once for each.
class Picture : public ViewTest
{
protected:
    explicit Picture(Theme theme);
    ~Picture() override;

    /// Makes the window as high as its content, so that nothing of it is left out.
    void showAll();
    /// Saves a picture of `widget` and checks that something is on it at the scale of the screen.
    void save(QWidget& widget, const std::string& name) const;
    /// Saves details under each other.
    void save(const QList<QImage>& details, const std::string& name) const;
    /// The part of the window around `widget`.
    static QImage detail(QWidget& widget);

private:
    void write(const QImage& picture, const std::string& name) const;

    Theme m_theme;
};
