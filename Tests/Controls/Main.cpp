// SPDX-License-Identifier: MIT
#include "Support/FailOnWarning.h"
#include "Support/WebHostScope.h"

#include "Controls/LauncherStyle.h"
#include "Controls/Palettes.h"

#include <gtest/gtest.h>

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    // No display is needed, unless one is asked for, but a screen that the window fits
    // on and a smaller one.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS_FILE);
    QApplication::setStyle(new LauncherStyle);
    const QApplication application(argumentCount, arguments);
    QApplication::setPalette(Palettes::light());
    failTestsOnWarnings();
    const WebHostScope nowhere(u"http://127.0.0.1:1"_s);
    return RUN_ALL_TESTS();
}
