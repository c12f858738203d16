// SPDX-License-Identifier: MIT
#include "Install/WebHost.h"

QString webHost()
{
    return QStringLiteral("https://github.com");
}
