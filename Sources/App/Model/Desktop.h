// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The model's interface to the desktop. Tests replace it. Main thread.
class Desktop
{
public:
    virtual ~Desktop() = default;

    /// Shows a modal alert with the buttons `button` and "Cancel". Returns true if the player chose
    /// `button`.
    virtual bool confirm(const QString& title, const QString& message, const QString& button) = 0;

    /// Replaces the clipboard's content by the plain text `text`.
    virtual void copyText(const QString& text) = 0;

    /// Opens the folder in the file browser.
    virtual void openFolder(const QString& path) = 0;

    /// Shows the folder, selected in its parent, in the file browser.
    virtual void revealFolder(const QString& path) = 0;
};
