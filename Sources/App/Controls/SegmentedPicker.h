// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QRadioButton;

/// A choice between a few values, shown side by side as radio buttons without indicators.
class SegmentedPicker final : public QWidget
{
    Q_OBJECT

public:
    /// `name` is for assistive technology. The first value is chosen.
    SegmentedPicker(const QString& name, const QStringList& titles);

    void setCurrent(int index);

Q_SIGNALS:
    /// Another value has been chosen, by the player or by setCurrent().
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QRadioButton*> m_segments;
};
