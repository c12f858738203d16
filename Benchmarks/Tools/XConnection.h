// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>

#include <sys/types.h>
#include <xcb/xcb.h>

/// Frees what the X library allocated.
struct FreeReply
{
    void operator()(void* reply) const { std::free(reply); }
};

template<typename Reply>
using ReplyPtr = std::unique_ptr<Reply, FreeReply>;
using EventPtr = ReplyPtr<xcb_generic_event_t>;

/// A connection to the display, as an onlooker has it who belongs to none of its programs.
///
/// Throws std::runtime_error when there is no display, and when it goes away.
class XConnection final
{
public:
    using Clock = std::chrono::steady_clock;

    XConnection();
    ~XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    [[nodiscard]] xcb_connection_t* get() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;

    /// Asks for the events about the windows that have no parent, and for what programs send to the
    /// root.
    void watchRoot() const;
    /// The next event; none when `deadline` passes before there is one.
    [[nodiscard]] EventPtr nextEvent(Clock::time_point deadline) const;
    /// The visible window of the program `pid`; XCB_NONE when it has none.
    [[nodiscard]] xcb_window_t windowOf(pid_t pid) const;

private:
    [[nodiscard]] bool isVisible(xcb_window_t window) const;
    [[nodiscard]] pid_t ownerOf(xcb_window_t window) const;

    xcb_connection_t* m_connection;
    xcb_window_t m_root = XCB_NONE;
};
