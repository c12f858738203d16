// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QScrollArea>

class AppModel;
class PlayPanel;
class Sheet;
class TextLabel;

/// The root of the main window: a column that scrolls, with the banner, what the game is, its
/// controls, the play panel and the buttons that open the two sheets.
class ContentView final : public QScrollArea
{
    Q_OBJECT

public:
    /// `model` must outlive the window.
    explicit ContentView(AppModel& model);

    /// The smallest size of the window, unless the screen offers less.
    static constexpr auto leastSize = QSize(620, 760);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override { return leastSize; }

private:
    [[nodiscard]] QWidget* factsBlock();
    [[nodiscard]] QWidget* controlsBlock();
    [[nodiscard]] QWidget* sheetButtons();

    void refreshFacts();
    /// Scrolls to what a press has just added, as far as the window is too small for it.
    void bringIntoView(QWidget* disclosed);
    /// Puts the scroll bar into the padding, so that nothing wraps anew when it comes and goes.
    void keepColumnInPlace();
    /// Opens the sheet that `make` builds, unless one is open.
    template<typename Make>
    void openSheet(Make make);

    AppModel& m_model;
    TextLabel* m_summary = nullptr;
    TextLabel* m_credits = nullptr;
    PlayPanel* m_panel = nullptr;
    QPointer<Sheet> m_sheet;
};
