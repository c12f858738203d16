// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Asks the desktop's file browser over the session bus, else the portal, to show `path` selected
/// in its parent folder. Returns at once. Calls `onFailure` on the main thread if neither answers.
void showInFileBrowser(const QString& path, const std::function<void()>& onFailure);
