// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/ScrollColumn.h"

class AppModel;
class PlayPanel;
class TextLabel;

/// The main window: a scrolling column with the banner, the game's description and controls, the
/// play panel, and the buttons that open the two sheets.
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
    /// Makes the column of actions as wide as its widest word.
    void fitActions();
    void refreshFacts();
    /// Scrolls no further than needed to show `disclosed`.
    void scrollTo(QWidget* disclosed);
    /// Sets the minimum size, limited to `available`. Also resizes the window if it had the former
    /// minimum size.
    void fit(QSize available);
    /// Scrolls no further than needed to show Play, unless the player has scrolled.
    void keepPlayInView();

    AppModel& m_model;
    TextLabel* m_summary;
    TextLabel* m_credits;
    PlayPanel* m_panel;
    QList<TextLabel*> m_actions;
    /// The scroll position set by keepPlayInView(). At any other, the player has scrolled.
    int m_startPosition = 0;
};
