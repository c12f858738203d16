// SPDX-License-Identifier: MIT
#include "Support/FailOnWarning.h"

#include "Support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QString>

#include <cstdlib>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

/// The offscreen platform's message about an unsupported call.
bool isOffscreenMessage(const QString& message)
{
    return message.startsWith("This plugin does not support "_L1);
}

void fail(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isOffscreenMessage(message))
        return;
    if (type == QtFatalMsg) {
        std::cerr << message.toStdString() << std::endl;
        std::abort();
    }
    ADD_FAILURE() << "Qt said: " << message;
}

} // namespace

void failTestsOnWarnings()
{
    qInstallMessageHandler(fail);
}
