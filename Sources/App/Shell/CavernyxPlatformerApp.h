// SPDX-License-Identifier: MIT
#pragma once

#include "Shell/SingleInstance.h"
#include "Shell/Translation.h"

#include <QApplication>

/// The application: the model, the window, the delegate and the event loop. Ignores the command
/// line, Qt's options included.
class CavernyxPlatformerApp final
{
    Q_DECLARE_TR_FUNCTIONS(CavernyxPlatformerApp)

public:
    /// `programName` must outlive the application. If no display can be opened, prints a sentence
    /// and exits with status 1.
    explicit CavernyxPlatformerApp(char* programName);

    /// Runs until the player quits. Returns the exit status. If another launcher uses the same
    /// installation, brings that to the front instead and exits the process with status 0. Shows a
    /// warning and returns 1 if that does not answer, or if no folder is known for the
    /// installation.
    int run();

private:
    int run(SingleInstance& instance);
    SingleInstance::Start start(SingleInstance& instance);
    int runFirst(SingleInstance& instance);
    static void warn(const QString& sentence);

    int m_argumentCount = 1;
    char* m_arguments[2];
    /// Allows the window to come to the front on a Wayland desktop.
    QByteArray m_activationToken;
    QApplication m_application;
    Translation m_translation;
};
