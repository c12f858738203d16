// SPDX-License-Identifier: MIT
#include "Platform/ExchangePaths.h"

#include <QFile>

#include <cstdio>
#include <fcntl.h>

bool exchangePaths(const QString& first, const QString& second)
{
    const auto a = QFile::encodeName(first);
    const auto b = QFile::encodeName(second);
#if defined(Q_OS_MACOS)
    return ::renamex_np(a.constData(), b.constData(), RENAME_SWAP) == 0;
#elif defined(Q_OS_LINUX)
    return ::renameat2(AT_FDCWD, a.constData(), AT_FDCWD, b.constData(), RENAME_EXCHANGE) == 0;
#else
    return false;
#endif
}
