// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Shows `progress`, 0 to 1, or none, on the task bar's entry of the application with the desktop
/// file `applicationId`. Returns at once. Has no effect without a session bus.
void showTaskBarProgress(const QString& applicationId, std::optional<double> progress);
