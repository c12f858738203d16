// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop.h"

/// The desktop as the player's session offers it: alerts over the window, the clipboard, and the
/// file browser. Where the session has no file browser, nothing happens.
class WidgetDesktop final : public Desktop
{
public:
    bool confirm(const QString& title, const QString& message, const QString& button) override;
    void copyText(const QString& text) override;
    void openFolder(const QString& path) override;
    /// Asks the file browser over the session bus, and opens the parent folder where that fails.
    void revealFolder(const QString& path) override;
};
