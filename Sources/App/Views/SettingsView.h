// SPDX-License-Identifier: MIT
#pragma once

#include "Views/Sheet.h"

class AppModel;
class QComboBox;
class QPushButton;
class SegmentedPicker;
class TextLabel;

/// The sheet with the two display settings of the next game start and the maintenance actions.
///
/// It keeps nothing: the settings live in the model, which stores them at once.
class SettingsView final : public Sheet
{
    Q_OBJECT

public:
    /// `model` must outlive the sheet.
    SettingsView(AppModel& model, QWidget* parent);

private:
    [[nodiscard]] QWidget* windowPicker();
    [[nodiscard]] QWidget* resolutionPicker();
    [[nodiscard]] QWidget* gameButtons();
    [[nodiscard]] QWidget* folderButtons();
    [[nodiscard]] QWidget* removeButton();
    void refresh();

    AppModel& m_model;
    SegmentedPicker* m_window = nullptr;
    QComboBox* m_resolution = nullptr;
    QPushButton* m_update = nullptr;
    QPushButton* m_reinstall = nullptr;
    QPushButton* m_showSaves = nullptr;
    TextLabel* m_noSaves = nullptr;
    QPushButton* m_remove = nullptr;
};
