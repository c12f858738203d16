// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The user's home folder, an absolute path without a trailing slash: `$HOME`, else what the user
/// database says. Throws PlatformError when neither names one.
QString homeFolder();
