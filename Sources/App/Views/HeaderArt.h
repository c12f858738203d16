// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

/// The banner: a gradient, a row of dark platforms along its bottom, and in front a game
/// controller, the program's name and a subtitle.
class HeaderArt final : public QWidget
{
    Q_OBJECT

public:
    HeaderArt();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSymbol(QPainter& painter);

    /// Reserves the symbol's space in the layout. The banner paints the symbol, because its shadow
    /// is larger than that space.
    QWidget* m_symbolSpace;
    /// Cached; depends on the device pixel ratio.
    QImage m_symbolShadow;
};
