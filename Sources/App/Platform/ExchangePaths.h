// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Exchanges the two existing paths in one atomic step of the file system. Gives false, and changes
/// nothing, when one of them does not exist or the system or file system knows no such step. Throws
/// PlatformError, and changes nothing, when it knows the step and refuses it.
bool exchangePaths(const QString& first, const QString& second);
