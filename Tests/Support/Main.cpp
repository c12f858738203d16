// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCoreApplication>

#include <cstdlib>

namespace {

/// A warning of Qt's that no test expects (QTest::ignoreMessage) is a defect of ours.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    ADD_FAILURE() << "Qt said: " << message.toStdString();
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
