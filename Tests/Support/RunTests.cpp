// SPDX-License-Identifier: MIT
#include "Support/RunTests.h"

#include "Support/OwnMounts.h"
#include "Support/QtPrinters.h"
#include "Support/WebHostScope.h"

#include <gtest/gtest.h>

#include <QString>

#include <cstdlib>
#include <iostream>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

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

int runTests()
{
    qInstallMessageHandler(fail);
    const WebHostScope nowhere(u"http://127.0.0.1:1"_s);
    const auto status = RUN_ALL_TESTS();
#if defined(Q_OS_LINUX)
    if (hasOwnMounts() && testing::UnitTest::GetInstance()->skipped_test_count() > 0)
        return noOwnMounts; // The test was skipped although it has mounts of its own.
#endif
    return status;
}

LeakCheck::~LeakCheck()
{
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check();
#endif
}
