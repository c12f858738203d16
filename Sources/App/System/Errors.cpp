// SPDX-License-Identifier: MIT
#include "System/Errors.h"

#include <cerrno>

PlatformError::PlatformError(const QString& sentence)
    // A file name may contain a line feed, but the sentence is one line of the log.
    : std::runtime_error(QString(sentence).replace(u'\n', u' ').toStdString())
{
}

PlatformError PlatformError::fromErrno(const QString& failure, int errorNumber)
{
    if (errorNumber == ENOSPC || errorNumber == EDQUOT)
        return fromReason(failure, tr("The disk is full. Make room on it and try again."));
    return fromReason(failure, qt_error_string(errorNumber));
}

PlatformError PlatformError::fromReason(const QString& failure, const QString& reason)
{
    const auto isSentence = reason.endsWith(u'.') || reason.endsWith(u'。');
    //: Makes a sentence of a reason in the system's own words, such as "Permission denied".
    const auto sentence = isSentence ? reason : tr("%1.").arg(reason);
    //: What failed, such as "Could not open “the file”", and the sentence that says why.
    return PlatformError(tr("%1: %2").arg(failure, sentence));
}
