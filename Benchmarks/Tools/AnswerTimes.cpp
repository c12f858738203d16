// SPDX-License-Identifier: MIT
#include "AnswerTimes.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

using namespace std::chrono_literals;

AnswerTimes::AnswerTimes(const XConnection& display, xcb_window_t window)
    : m_display(display)
    , m_window(window)
    , m_protocols(display.atom("WM_PROTOCOLS"))
    , m_ping(display.atom("_NET_WM_PING"))
{
    // The answers go to the root.
    display.watchRoot();
}

void AnswerTimes::gather(Seconds span)
{
    using Clock = XConnection::Clock;
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(span);
    for (auto next = Clock::now(); next < end; next += 2ms) {
        takeAnswers(next);
        ask();
    }
    const auto deadline = Clock::now() + 20s;
    while (m_answers.size() < m_asked.size() && Clock::now() < deadline)
        takeAnswers(Clock::now() + 2ms);
    if (m_answers.size() < m_asked.size())
        throw std::runtime_error("The program does not answer.");
}

void AnswerTimes::report()
{
    std::sort(m_answers.begin(), m_answers.end());
    const auto percentile = [this](size_t hundredths) {
        return m_answers[(m_answers.size() - 1) * hundredths / 100].count();
    };
    std::printf("{\"answers\": %zu, \"median\": %.6f, \"p99\": %.6f, \"longest\": %.6f}\n",
                m_answers.size(), percentile(50), percentile(99), percentile(100));
}

void AnswerTimes::ask()
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_window;
    event.type = m_protocols;
    // The program sends the message back as it is, the number of the question included.
    event.data.data32[0] = m_ping;
    event.data.data32[1] = XCB_CURRENT_TIME;
    event.data.data32[2] = m_window;
    event.data.data32[3] = static_cast<uint32_t>(m_asked.size());
    m_asked.push_back(XConnection::Clock::now());
    xcb_send_event(m_display.get(), 0, m_window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(m_display.get());
}

void AnswerTimes::takeAnswers(XConnection::Clock::time_point until)
{
    while (const auto event = m_display.nextEvent(until)) {
        if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
            continue;
        const auto& answer = *reinterpret_cast<xcb_client_message_event_t*>(event.get());
        const auto question = answer.data.data32[3];
        if (answer.data.data32[0] == m_ping && question < m_asked.size())
            m_answers.emplace_back(XConnection::Clock::now() - m_asked[question]);
    }
}
