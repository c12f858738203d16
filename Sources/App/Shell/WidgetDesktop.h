// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Desktop.h"

#include <QCoreApplication>

/// The player's desktop: alerts, the clipboard and the file browser. If there is no file browser,
/// an alert names the folder.
class WidgetDesktop final : public Desktop
{
    Q_DECLARE_TR_FUNCTIONS(WidgetDesktop)

public:
    bool confirm(const QString& title, const QString& message, const QString& button) override;
    void copyText(const QString& text) override;
    void openFolder(const QString& path) override;
    /// Opens the parent folder if no file browser can select the folder.
    void revealFolder(const QString& path) override;
};
