// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the model needs from the desktop. The shell implements it; tests replace it. Main thread.
class Desktop
{
public:
    virtual ~Desktop() = default;

    /// Asks the player in a modal alert with the buttons `button` and "Cancel"; true exactly when
    /// the player chose `button`.
    virtual bool confirm(const QString& title, const QString& message, const QString& button) = 0;

    /// Puts `text` on the clipboard as plain text, in place of what is there.
    virtual void copyText(const QString& text) = 0;

    /// Opens the folder in the file browser.
    virtual void openFolder(const QString& path) = 0;

    /// Shows the folder, selected in its parent, in the file browser.
    virtual void revealFolder(const QString& path) = 0;
};
