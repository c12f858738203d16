// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QRadioButton;

/// A choice between a few values, shown side by side. Its segments are radio buttons: the arrow
/// keys change the choice, Tab leaves the picker.
class SegmentedPicker final : public QWidget
{
    Q_OBJECT

public:
    /// `name` is for assistive technology. The first segment is chosen.
    SegmentedPicker(const QString& name, const QStringList& titles);

    void setCurrent(int index);

Q_SIGNALS:
    /// Another segment has been chosen, by the player or by the program.
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QRadioButton*> m_segments;
};
