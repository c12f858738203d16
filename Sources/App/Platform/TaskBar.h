// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Shows `progress`, 0 to 1, on the task bar's entry of the application that the desktop file
/// `applicationId` describes, or none. Returns at once; has no effect without a session bus.
void showTaskBarProgress(const QString& applicationId, std::optional<double> progress);
