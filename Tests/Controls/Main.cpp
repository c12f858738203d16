// SPDX-License-Identifier: MIT
#include "Support/RunTests.h"

#include "Controls/LauncherStyle.h"
#include "Controls/Palettes.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    // No display is needed, unless one is asked for, but a screen that the window fits
    // on and a smaller one.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS_FILE);
    const LeakCheck leakCheck;
    QApplication::setStyle(new LauncherStyle);
    const QApplication application(argumentCount, arguments);
    QApplication::setPalette(Palettes::light());
    return runTests();
}
