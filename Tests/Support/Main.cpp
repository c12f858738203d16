// SPDX-License-Identifier: MIT
#include "Support/WebHostScope.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <cstdlib>
#include <iostream>

namespace {

/// A warning of Qt's that no test expects (QTest::ignoreMessage) is a defect of ours.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    if (type == QtFatalMsg) {
        std::cerr << message.toStdString() << std::endl;
        std::abort();
    }
    ADD_FAILURE() << "Qt said: " << message.toStdString();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    qInstallMessageHandler(failOnWarning);
    const WebHostScope nowhere(QStringLiteral("http://127.0.0.1:1"));
    return RUN_ALL_TESTS();
}
