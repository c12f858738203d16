// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

/// A panel with rounded corners behind its children, tinted with a colour of the palette.
class RoundedBox : public QWidget
{
    Q_OBJECT

public:
    /// Gives the tint for the palette of the moment.
    using Tint = QColor (*)(const QPalette& palette);

    RoundedBox(double radius, Tint tint);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_radius;
    Tint m_tint;
};
