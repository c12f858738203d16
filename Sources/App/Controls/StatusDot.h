// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

/// A small disc that shows the status as a colour. For assistive technology it is a notification
/// with the status in words, which is read out when it changes.
class StatusDot final : public QWidget
{
    Q_OBJECT

public:
    /// Returns the colour of the disc. Called for each repaint.
    using Color = QColor (*)(const QPalette& palette);

    explicit StatusDot(Color initial);

    void setStatus(Color status, const QString& meaning);
    [[nodiscard]] QColor color() const { return m_color(palette()); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Color m_color;
};
