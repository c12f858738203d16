// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class AppModel;
class PlayPanel;
class TextLabel;

/// The root of the main window: a scrolling column with the banner, the game's description and
/// controls, the play panel, and the buttons that open the two sheets.
class ContentView final : public QScrollArea
{
    Q_OBJECT

public:
    /// `model` must outlive the window.
    explicit ContentView(AppModel& model);

    /// The minimum size of the window, unless the screen is smaller.
    static constexpr auto minSize = QSize(620, 760);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override { return minSize; }

private:
    [[nodiscard]] QWidget* controlsBlock();
    void refreshFacts();
    /// Scrolls just as far as makes `disclosed` visible.
    void scrollTo(QWidget* disclosed);
    /// Takes the scroll bar's width from the padding, so that no text wraps differently when it
    /// comes and goes.
    void reserveScrollBarSpace();

    AppModel& m_model;
    TextLabel* m_summary;
    TextLabel* m_credits;
    PlayPanel* m_panel;
};
