// SPDX-License-Identifier: MIT
#pragma once

#include "Support/AppModelAccess.h"
#include "Views/ViewTest.h"

#include "Views/DisclosureButton.h"
#include "Views/PlayButton.h"
#include "Views/PlayPanel.h"
#include "Views/ProgressBar.h"
#include "Views/TextBox.h"

/// The play panel in the window, in whichever phase a test puts it.
class PlayPanelTest : public ViewTest
{
protected:
    PlayPanel& panel() { return only<PlayPanel>(); }
    PlayButton& play() { return only<PlayButton>(); }
    QAbstractButton& stop() { return *button(QStringLiteral("Stop")); }
    QAbstractButton& cancel() { return *button(QStringLiteral("Cancel")); }
    QAbstractButton& disclosure() { return only<DisclosureButton>(); }
    ProgressBar& progress() { return only<ProgressBar>(); }

    void enter(const Phase& phase)
    {
        AppModelAccess::setPhase(model(), phase);
        settle();
    }

    bool showsFailure()
    {
        const auto* const box = window().findChild<TextBox*>();
        return box && box->isVisible();
    }
    /// The report's box, which comes before that of the log.
    TextBox& failure() { return only<TextBox>(); }
};
