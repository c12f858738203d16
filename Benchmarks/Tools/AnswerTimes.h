// SPDX-License-Identifier: MIT
#pragma once

#include "XConnection.h"

#include <vector>

/// Asks the program in a window again and again whether it is alive, as a window manager does. Its
/// main event loop answers, in its turn; the time to the answer is how long that was busy.
class AnswerTimes final
{
public:
    using Seconds = std::chrono::duration<double>;

    /// `display` must outlive this object.
    AnswerTimes(const XConnection& display, xcb_window_t window);

    /// Asks every 2 ms for `span` and then waits for the answers that are left. Throws
    /// std::runtime_error when they do not come within 20 seconds.
    void gather(Seconds span);

    /// Prints the number of answers and their times in seconds, as one line of JSON.
    void report();

private:
    void ask();
    void takeAnswers(XConnection::Clock::time_point until);

    const XConnection& m_display;
    const xcb_window_t m_window;
    const xcb_atom_t m_protocols;
    const xcb_atom_t m_ping;
    std::vector<XConnection::Clock::time_point> m_asked;
    std::vector<Seconds> m_answers;
};
