// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Runs `action` in a forked process in which `systemCall` fails with the error number `error`.
/// Returns the sentence of the PlatformError that `action` throws; empty if it throws none. Linux
/// only.
QString sentenceWithout(unsigned systemCall, unsigned error, const std::function<void()>& action);
