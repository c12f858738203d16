// SPDX-License-Identifier: MIT
#include "Support/FailOnWarning.h"

#include <gtest/gtest.h>

#include <QString>

#include <cstdlib>
#include <iostream>

namespace {

/// What the platform without a display says whenever a shown window bounds its size.
constexpr QLatin1String offscreenRemark("This plugin does not support propagateSizeHints()");

void fail(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || message == offscreenRemark)
        return;
    if (type == QtFatalMsg) {
        std::cerr << message.toStdString() << std::endl;
        std::abort();
    }
    ADD_FAILURE() << "Qt said: " << message.toStdString();
}

} // namespace

void failTestsOnWarnings()
{
    qInstallMessageHandler(fail);
}
