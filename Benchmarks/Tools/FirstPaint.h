// SPDX-License-Identifier: MIT
#pragma once

#include "XConnection.h"

#include <map>

#include <xcb/damage.h>

/// Follows the new windows on the display until one of them is visible and painted all over.
class FirstPaint final
{
public:
    /// Throws std::runtime_error when the display cannot tell of painting. `display` must outlive
    /// this object.
    explicit FirstPaint(const XConnection& display);

    /// Returns the time at which the display reported it. Throws std::runtime_error when that takes
    /// longer than 20 seconds.
    [[nodiscard]] XConnection::Clock::time_point wait();

private:
    void watchPainting(xcb_window_t window) const;
    bool isAllPainted(const xcb_damage_notify_event_t& damage);

    const XConnection& m_display;
    int m_damageEvent = 0;
    std::map<xcb_window_t, bool> m_visible;
    std::map<xcb_window_t, int> m_paintedArea;
};
