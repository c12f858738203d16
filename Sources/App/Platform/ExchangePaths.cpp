// SPDX-License-Identifier: MIT
#include "Platform/ExchangePaths.h"

#include "Platform/PlatformError.h"
#include "Platform/Unsupported.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace {

int exchange([[maybe_unused]] const char* first, [[maybe_unused]] const char* second)
{
#if defined(Q_OS_MACOS)
    return ::renamex_np(first, second, RENAME_SWAP);
#elif defined(Q_OS_LINUX)
    return ::renameat2(AT_FDCWD, first, AT_FDCWD, second, RENAME_EXCHANGE);
#else
    errno = ENOSYS;
    return -1;
#endif
}

} // namespace

bool exchangePaths(const QString& first, const QString& second)
{
    const auto a = QFile::encodeName(first);
    const auto b = QFile::encodeName(second);
    if (exchange(a.constData(), b.constData()) == 0)
        return true;
    const auto error = errno;
    // Then the step was not even tried, and moving one path after the other may still succeed.
    if (error == ENOENT || isUnsupported(error))
        return false;
    throw PlatformError::fromErrno(PlatformError::tr("exchange “%1” and “%2”").arg(first, second),
                                   error);
}
