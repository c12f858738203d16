// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// The launcher's main button: large, as wide as its place and filled with the accent colour. It is
/// its window's default button.
class PlayButton final : public QPushButton
{
    Q_OBJECT

public:
    PlayButton();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void paintLabel(QPainter& painter, const QColor& color) const;
};
