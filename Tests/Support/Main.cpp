// SPDX-License-Identifier: MIT
#include "Support/FailOnWarning.h"
#include "Support/WebHostScope.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    failTestsOnWarnings();
    const WebHostScope nowhere(u"http://127.0.0.1:1"_s);
    return RUN_ALL_TESTS();
}
