// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <stop_token>

/// Thrown by an operation that ended because the player cancelled it. It is not a failure.
class Cancelled final : public std::exception
{
public:
    [[nodiscard]] const char* what() const noexcept override { return "Cancelled."; }
};

/// Throws Cancelled when `stop` has been requested.
inline void throwIfCancelled(const std::stop_token& stop)
{
    if (stop.stop_requested())
        throw Cancelled();
}
