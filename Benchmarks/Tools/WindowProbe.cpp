// SPDX-License-Identifier: MIT
//
// Measures a program with a window from outside, as it is, by what the display sees of it.
//
//   window-probe first-paint PROGRAM ARGUMENT…   starts it and waits for its first painted window
//   window-probe answer-times PID SECONDS        how soon its event loop answers, again and again
//   window-probe press-return PID                presses Return in its window
#include "AnswerTimes.h"
#include "FirstPaint.h"
#include "Program.h"
#include "XConnection.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <xcb/xtest.h>

using namespace std::chrono_literals;

namespace {

using Clock = XConnection::Clock;
using Seconds = std::chrono::duration<double>;

void measureFirstPaint(char** command)
{
    const XConnection display;
    FirstPaint firstPaint(display);
    const auto start = Clock::now();
    const Program program(command);
    const Seconds wall = firstPaint.wait() - start;
    // What starts after the first painting belongs to the memory of a window at rest.
    std::this_thread::sleep_for(1s);
    std::printf("{\"wall\": %.6f, \"resident_kib\": %ld}\n", wall.count(), program.residentKib());
}

/// The program may just have been started.
xcb_window_t visibleWindow(const XConnection& display, const char* pid)
{
    for (const auto deadline = Clock::now() + 20s; Clock::now() < deadline;) {
        if (const auto window = display.windowOf(std::stoi(pid)))
            return window;
        std::this_thread::sleep_for(50ms);
    }
    throw std::runtime_error("The program has no window.");
}

void measureAnswerTimes(const char* pid, const char* seconds)
{
    const XConnection display;
    AnswerTimes times(display, visibleWindow(display, pid));
    times.gather(Seconds(std::stod(seconds)));
    times.report();
}

xcb_keycode_t keyOf(const XConnection& display, xcb_keysym_t wanted)
{
    const auto* setup = xcb_get_setup(display.get());
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const ReplyPtr<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        display.get(), xcb_get_keyboard_mapping(display.get(), setup->min_keycode, count),
        nullptr));
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const auto length = xcb_get_keyboard_mapping_keysyms_length(mapping.get());
    const auto* found = std::find(symbols, symbols + length, wanted);
    if (found == symbols + length)
        throw std::runtime_error("The keyboard has no such key.");
    return static_cast<xcb_keycode_t>(setup->min_keycode +
                                      (found - symbols) / mapping->keysyms_per_keycode);
}

/// Prints the moment of the press in nanoseconds of the monotonic clock.
void pressReturn(const char* pid)
{
    constexpr xcb_keysym_t returnSymbol = 0xff0d;
    const XConnection display;
    const auto key = keyOf(display, returnSymbol);
    xcb_set_input_focus(display.get(), XCB_INPUT_FOCUS_PARENT, visibleWindow(display, pid),
                        XCB_CURRENT_TIME);
    // The window reacts to having the focus first.
    xcb_flush(display.get());
    std::this_thread::sleep_for(300ms);
    const auto press = Clock::now();
    constexpr uint8_t events[] = {XCB_KEY_PRESS, XCB_KEY_RELEASE};
    for (const auto type : events)
        xcb_test_fake_input(display.get(), type, key, XCB_CURRENT_TIME, display.root(), 0, 0, 0);
    xcb_flush(display.get());
    // The display has taken the keys once it answers a later request.
    static_cast<void>(display.atom("_NET_WM_PID"));
    std::printf("{\"pressed\": %lld}\n", static_cast<long long>(press.time_since_epoch().count()));
}

bool probe(const std::vector<char*>& words)
{
    const std::string work = words.size() > 1 ? words[1] : "";
    if (work == "first-paint" && words.size() > 3)
        measureFirstPaint(const_cast<char**>(&words[2]));
    else if (work == "answer-times" && words.size() == 5)
        measureAnswerTimes(words[2], words[3]);
    else if (work == "press-return" && words.size() == 4)
        pressReturn(words[2]);
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (probe(std::vector<char*>(argv, argv + argc + 1)))
            return 0;
        std::fputs("usage: window-probe first-paint PROGRAM ARGUMENT…\n"
                   "                    answer-times PID SECONDS | press-return PID\n",
                   stderr);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "window-probe: %s\n", error.what());
        return 1;
    }
}
