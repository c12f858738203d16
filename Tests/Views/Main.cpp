// SPDX-License-Identifier: MIT
#include "Support/FailOnWarning.h"
#include "Support/WebHostScope.h"

#include "Views/LauncherStyle.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    // No display is needed, unless one is asked for, but a screen that the window fits
    // on and a smaller one.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS_FILE);
    QApplication::setStyle(new LauncherStyle);
    const QApplication application(argumentCount, arguments);
    QApplication::setPalette(LauncherStyle::lightPalette());
    failTestsOnWarnings();
    const WebHostScope nowhere(QStringLiteral("http://127.0.0.1:1"));
    return RUN_ALL_TESTS();
}
