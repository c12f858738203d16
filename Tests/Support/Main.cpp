// SPDX-License-Identifier: MIT
#include "Support/RunTests.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const LeakCheck leakCheck;
    const QCoreApplication application(argumentCount, arguments);
    return runTests();
}
