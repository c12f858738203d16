// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

/// Reads the system's font configuration on a second thread, which saves the first text a tenth of
/// a start. Ends before this object does. Needs no application object.
class FontConfiguration final
{
public:
    FontConfiguration();

private:
    std::jthread m_thread;
};
