// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/ScrollColumn.h"

class AppModel;
class PlayPanel;
class TextLabel;

/// The root of the main window: a scrolling column with the banner, the game's description and
/// controls, the play panel, and the buttons that open the two sheets.
class ContentView final : public ScrollColumn
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
    /// Makes the column of actions wide enough for the widest word in a large font.
    void fitActions();
    void refreshFacts();
    /// Scrolls just as far as makes `disclosed` visible.
    void scrollTo(QWidget* disclosed);
    /// Sets the minimum size, or as much of it as is available. A window that has its minimum size
    /// keeps it.
    void fit(QSize available);
    /// Scrolls just as far as brings Play into view, unless the player has scrolled.
    void keepPlayInView();

    AppModel& m_model;
    TextLabel* m_summary;
    TextLabel* m_credits;
    PlayPanel* m_panel;
    QList<TextLabel*> m_actions;
    /// Where keepPlayInView() has scrolled to. Elsewhere the player has scrolled.
    int m_startPosition = 0;
};
