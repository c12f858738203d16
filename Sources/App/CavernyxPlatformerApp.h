// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

/// The application: one model, one window, one delegate, and the event loop that runs them.
///
/// It takes nothing from the command line; what would be an option of Qt's is not one here.
class CavernyxPlatformerApp final
{
public:
    /// `programName` must outlive the application. Where no display can be opened, this says so in
    /// one sentence and ends the program with status 1.
    explicit CavernyxPlatformerApp(char* programName);

    /// Shows the window and returns the program's exit status once the player has quit.
    int run();

private:
    void loadTranslation();

    int m_argumentCount = 1;
    char* m_arguments[2];
    QApplication m_application;
};
