// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

class SingleInstance;

/// The application: one model, one window, one delegate, and the event loop that runs them.
///
/// It takes nothing from the command line; what would be an option of Qt's is not one here.
class CavernyxPlatformerApp final
{
public:
    /// `programName` must outlive the application. Where no display can be opened, this says so in
    /// one sentence and ends the program with status 1.
    explicit CavernyxPlatformerApp(char* programName);

    /// Shows the window and returns the program's exit status once the player has quit. Where
    /// another launcher serves the same installation, brings that to the front instead.
    int run();

private:
    int runFirst(SingleInstance& instance);
    void loadTranslation();
    bool installTranslation(const QString& name, const QString& folder);

    int m_argumentCount = 1;
    char* m_arguments[2];
    /// By which the desktop lets a window of this start come to the front.
    QByteArray m_activationToken;
    QApplication m_application;
};
