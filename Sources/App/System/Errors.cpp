// SPDX-License-Identifier: MIT
#include "System/Errors.h"

#include <cerrno>

PlatformError::PlatformError(const QString& sentence)
    // A file name may contain a line feed, but the sentence is one line of the log.
    : std::runtime_error(QString(sentence).replace(u'\n', u' ').toStdString())
{
}

PlatformError PlatformError::fromErrno(const QString& action, int errorNumber)
{
    if (errorNumber == ENOSPC || errorNumber == EDQUOT)
        return fromReason(action, tr("The disk is full. Make room on it and try again."));
    return fromReason(action, qt_error_string(errorNumber));
}

PlatformError PlatformError::fromReason(const QString& action, const QString& reason)
{
    const auto full = reason.endsWith(u'.') ? reason : reason + u'.';
    return PlatformError(tr("Could not %1: %2").arg(action, full));
}
