// SPDX-License-Identifier: MIT
#pragma once

#include "System/Errors.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <type_traits>
#include <utility>

/// Runs `work`, a call that cannot be interrupted, on a new thread and returns its result. Returns
/// nothing if `timeout` passes or `stop` is requested first. The thread then continues, so `work`
/// must own everything it uses. It must not throw. Blocks. Throws PlatformError if no thread can
/// be started.
template<typename Work>
auto runAbandonable(Work work, std::chrono::milliseconds timeout, const std::stop_token& stop)
    -> std::optional<std::invoke_result_t<Work&>>
{
    struct Shared
    {
        std::mutex mutex;
        std::condition_variable_any ended;
        std::optional<std::invoke_result_t<Work&>> result;
    };
    const auto shared = std::make_shared<Shared>();
    try {
        std::thread([shared, work = std::move(work)]() mutable {
            auto result = work();
            const std::lock_guard guard(shared->mutex);
            shared->result = std::move(result);
            shared->ended.notify_all();
        }).detach();
    } catch (const std::system_error& error) {
        throw PlatformError::fromErrno(PlatformError::tr("Could not start a thread"),
                                       error.code().value());
    }
    std::unique_lock lock(shared->mutex);
    shared->ended.wait_for(lock, stop, timeout, [&shared] { return shared->result.has_value(); });
    return std::exchange(shared->result, std::nullopt);
}
