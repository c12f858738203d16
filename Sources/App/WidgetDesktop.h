// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop.h"

#include <QCoreApplication>

/// The desktop as the player's session offers it: alerts over the window, the clipboard, and the
/// file browser. Where the session has no file browser, an alert says where the folder is.
class WidgetDesktop final : public Desktop
{
    Q_DECLARE_TR_FUNCTIONS(WidgetDesktop)

public:
    bool confirm(const QString& title, const QString& message, const QString& button) override;
    void copyText(const QString& text) override;
    void openFolder(const QString& path) override;
    /// Asks the file browser over the session bus, and opens the parent folder where that fails.
    void revealFolder(const QString& path) override;
};
