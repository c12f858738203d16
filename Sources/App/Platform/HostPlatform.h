// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Both platforms' decisions are compiled and tested everywhere; only the choice is made here.
#if defined(Q_OS_MACOS)
#include "Platform/MacPlatform.h"
namespace HostPlatform = MacPlatform;
#else
#include "Platform/LinuxPlatform.h"
namespace HostPlatform = LinuxPlatform;
#endif
