// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

/// Loads the system's font configuration on a second thread, which saves a tenth of the start. The
/// destructor waits for it. Needs no application object.
class FontConfiguration final
{
public:
    FontConfiguration();

private:
    std::jthread m_thread;
};
