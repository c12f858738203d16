// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/Sheet.h"

class AppModel;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class SegmentedPicker;
class TextLabel;

/// The sheet with the two display settings of the next launch and the maintenance actions. Every
/// change is passed to the model at once.
class SettingsView final : public Sheet
{
    Q_OBJECT

public:
    /// `model` must outlive the sheet.
    SettingsView(AppModel& model, QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    struct PickerRow
    {
        QBoxLayout* box;
        QLabel* label;
        QWidget* control;
    };

    [[nodiscard]] QWidget* displayPickers();
    [[nodiscard]] QWidget* pickerRow(const QString& text, QWidget* control);
    /// Puts the labels before the controls, or above them if they do not fit side by side.
    void arrangePickers();
    void closeAfter(void (AppModel::*action)());
    void refresh();

    AppModel& m_model;
    QList<PickerRow> m_pickerRows;
    SegmentedPicker* m_windowMode = nullptr;
    QComboBox* m_resolution = nullptr;
    QPushButton* m_update = nullptr;
    QPushButton* m_reinstall = nullptr;
    QPushButton* m_showSaves = nullptr;
    TextLabel* m_noSaves = nullptr;
    QPushButton* m_remove = nullptr;
};
