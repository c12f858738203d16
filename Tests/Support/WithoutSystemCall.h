// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Does `action` in a process of its own, to which the system refuses the call `systemCall` with
/// the error number `error`, and returns the sentence of the PlatformError that `action` throws. It
/// is empty when it throws nothing. Linux only.
QString sentenceWithout(unsigned systemCall, unsigned error, const std::function<void()>& action);
