// SPDX-License-Identifier: MIT
#include "Platform/FontConfiguration.h"

#include <QtGlobal>

#include <system_error>

#if defined(Q_OS_LINUX)
#include <fontconfig/fontconfig.h>
#endif

FontConfiguration::FontConfiguration()
{
#if defined(Q_OS_LINUX)
    try {
        m_thread = std::jthread([] { FcInit(); });
    } catch (const std::system_error&) {
        // Qt then loads it itself.
    }
#endif
}
