// SPDX-License-Identifier: MIT
#include "Install/Http/WebHost.h"

using namespace Qt::StringLiterals;

QString webHost()
{
    return u"https://github.com"_s;
}
