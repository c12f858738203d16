// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Takes one line of text for the log. It may be called from any thread.
using LogCallback = std::function<void(const QString& line)>;
