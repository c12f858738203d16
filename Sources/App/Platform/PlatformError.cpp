// SPDX-License-Identifier: MIT
#include "Platform/PlatformError.h"

PlatformError::PlatformError(const QString& sentence)
    : std::runtime_error(sentence.toStdString())
{
}

PlatformError PlatformError::fromErrno(const QString& action, int errorNumber)
{
    return fromReason(action, qt_error_string(errorNumber));
}

PlatformError PlatformError::fromReason(const QString& action, const QString& reason)
{
    const auto full = reason.endsWith(u'.') ? reason : reason + u'.';
    return PlatformError(tr("Could not %1: %2").arg(action, full));
}
