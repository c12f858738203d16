// SPDX-License-Identifier: MIT
#include "XConnection.h"

#include <stdexcept>

#include <poll.h>

XConnection::XConnection()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection)) {
        xcb_disconnect(m_connection);
        throw std::runtime_error("There is no display.");
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

XConnection::~XConnection()
{
    xcb_disconnect(m_connection);
}

xcb_atom_t XConnection::atom(const std::string& name) const
{
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.c_str());
    const ReplyPtr<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    if (!reply)
        throw std::runtime_error("The display has gone away.");
    return reply->atom;
}

void XConnection::watchRoot() const
{
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(m_connection);
}

EventPtr XConnection::nextEvent(Clock::time_point deadline) const
{
    for (;;) {
        if (EventPtr event{xcb_poll_for_event(m_connection)})
            return event;
        if (xcb_connection_has_error(m_connection))
            throw std::runtime_error("The display has gone away.");
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return nullptr;
        pollfd display = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        ::poll(&display, 1, static_cast<int>(left));
    }
}

xcb_window_t XConnection::windowOf(pid_t pid) const
{
    const ReplyPtr<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_root), nullptr));
    if (!tree)
        return XCB_NONE;
    const auto* windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (ownerOf(windows[i]) == pid && isVisible(windows[i]))
            return windows[i];
    }
    return XCB_NONE;
}

bool XConnection::isVisible(xcb_window_t window) const
{
    const ReplyPtr<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

pid_t XConnection::ownerOf(xcb_window_t window) const
{
    const auto cookie =
        xcb_get_property(m_connection, 0, window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 0, 1);
    const ReplyPtr<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(uint32_t))
        return 0;
    return static_cast<pid_t>(*static_cast<const uint32_t*>(xcb_get_property_value(reply.get())));
}
