// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>

#include <optional>
#include <utility>

class QVariantAnimation;

/// A thin progress bar. While indeterminate, a short piece moves along it, or stays in the middle
/// if the style has no animations. The animation runs only while the bar is visible.
class ProgressBar final : public QProgressBar
{
    Q_OBJECT

public:
    /// `name` is for assistive technology.
    explicit ProgressBar(const QString& name);

    /// 0 to 1; nothing makes the bar indeterminate. Sets QProgressBar's value, which is for
    /// assistive technology, in tenths.
    void setFraction(std::optional<double> fraction);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool isIndeterminate() const { return minimum() == maximum(); }
    /// The start and the end of the filled part, 0 to 1 along the bar.
    [[nodiscard]] std::pair<double, double> filledPart() const;
    [[nodiscard]] bool isAnimated() const;
    void updateAnimation();

    /// 0 to 1; unused if the bar is indeterminate.
    double m_filled = 0;
    /// Moves the start of the piece.
    QVariantAnimation* m_animation;
};
