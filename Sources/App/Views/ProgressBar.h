// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QProgressBar>

#include <optional>

/// A thin linear progress bar. Without a fraction a short piece travels along it; that animation
/// runs only while it can be seen.
class ProgressBar final : public QProgressBar
{
    Q_OBJECT

public:
    /// `name` is what assistive technology calls it.
    explicit ProgressBar(const QString& name);

    /// 0 to 1, or nothing when it is not known how far the work is.
    void setFraction(std::optional<double> fraction);

    /// Whether the animation runs.
    [[nodiscard]] bool isAnimating() const { return m_animation.isActive(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] bool isIndeterminate() const { return minimum() == maximum(); }
    /// Where the filled part lies, 0 to 1 along the bar.
    [[nodiscard]] std::pair<double, double> filledPart() const;
    void fillTo(int step);
    void updateAnimation();

    QBasicTimer m_animation;
    QElapsedTimer m_travel;
};
