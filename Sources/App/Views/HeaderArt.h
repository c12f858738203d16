// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

/// The banner: a gradient with a row of dark platforms along its bottom, and in front of them a
/// game controller, the program's name and a subtitle.
class HeaderArt final : public QWidget
{
    Q_OBJECT

public:
    HeaderArt();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSymbol(QPainter& painter);

    /// Takes the symbol's room in the layout; the banner paints it there, as its shadow reaches
    /// beyond that room.
    QWidget* m_symbolRoom;
    /// Drawn once for each device pixel ratio.
    QImage m_symbolShadow;
};
