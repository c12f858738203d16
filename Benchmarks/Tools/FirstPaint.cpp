// SPDX-License-Identifier: MIT
#include "FirstPaint.h"

#include <stdexcept>

using namespace std::chrono_literals;

FirstPaint::FirstPaint(const XConnection& display)
    : m_display(display)
{
    const auto* extension = xcb_get_extension_data(display.get(), &xcb_damage_id);
    if (!extension->present)
        throw std::runtime_error("The display cannot tell of painting.");
    m_damageEvent = extension->first_event + XCB_DAMAGE_NOTIFY;
    // Without having been asked for its version the extension refuses all else.
    const ReplyPtr<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
        display.get(), xcb_damage_query_version(display.get(), 1, 1), nullptr));
    display.watchRoot();
}

XConnection::Clock::time_point FirstPaint::wait()
{
    const auto deadline = XConnection::Clock::now() + 20s;
    while (const auto event = m_display.nextEvent(deadline)) {
        const auto now = XConnection::Clock::now();
        const int type = event->response_type & 0x7f;
        if (type == XCB_CREATE_NOTIFY)
            watchPainting(reinterpret_cast<xcb_create_notify_event_t*>(event.get())->window);
        else if (type == XCB_MAP_NOTIFY)
            m_visible[reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window] = true;
        else if (type == m_damageEvent &&
                 isAllPainted(*reinterpret_cast<xcb_damage_notify_event_t*>(event.get())))
            return now;
    }
    throw std::runtime_error("No window was painted.");
}

void FirstPaint::watchPainting(xcb_window_t window) const
{
    xcb_damage_create(m_display.get(), xcb_generate_id(m_display.get()), window,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(m_display.get());
}

bool FirstPaint::isAllPainted(const xcb_damage_notify_event_t& damage)
{
    if (!m_visible[damage.drawable])
        return false;
    auto& painted = m_paintedArea[damage.drawable];
    painted += damage.area.width * damage.area.height;
    return painted >= damage.geometry.width * damage.geometry.height;
}
