// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

/// The banner: a gradient with a row of dark platforms along its bottom, and before them the
/// program's symbol and name. Pure drawing with two fixed texts.
class HeaderArt final : public QWidget
{
    Q_OBJECT

public:
    HeaderArt();

    /// The platforms' sizes from left to right.
    [[nodiscard]] static QList<QSize> barSizes();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSymbol(QPainter& painter);

    /// Keeps the symbol's place beside the texts; the symbol's shadow reaches beyond it.
    QWidget* m_symbolPlace;
    /// Drawn once for each resolution of the screen.
    QImage m_symbolShadow;
};
