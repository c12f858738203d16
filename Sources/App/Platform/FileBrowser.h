// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Asks the desktop's file browser over the session bus to show `path`, selected in its parent
/// folder, or in a sandbox the desktop's portal. Returns at once. Calls `onFailure` on the main
/// thread when no file browser answers.
void showInFileBrowser(const QString& path, const std::function<void()>& onFailure);
