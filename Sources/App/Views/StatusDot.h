// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

/// A small disc that shows the launcher's status as a colour. To assistive technology it is a
/// notice that says the status in words and is read out when they change.
class StatusDot final : public QWidget
{
    Q_OBJECT

public:
    /// Gives the colour for the palette of the moment.
    using Color = QColor (*)(const QPalette& palette);

    explicit StatusDot(Color initial);

    void setStatus(Color status, const QString& meaning);
    /// The colour as it is shown.
    [[nodiscard]] QColor color() const { return m_color(palette()); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void announce();

    Color m_color;
};
