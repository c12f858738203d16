// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QRadioButton;

/// A choice between a few values that all stand side by side, one of them chosen.
///
/// Its segments are radio buttons: the arrow keys move the choice, Tab goes past.
class SegmentedPicker final : public QWidget
{
    Q_OBJECT

public:
    /// `name` says what is chosen; the first of `titles` is chosen at first.
    SegmentedPicker(const QString& name, const QStringList& titles);

    [[nodiscard]] int current() const;
    void setCurrent(int index);

Q_SIGNALS:
    /// Another segment is chosen now, by whatever means.
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QRadioButton*> m_segments;
};
