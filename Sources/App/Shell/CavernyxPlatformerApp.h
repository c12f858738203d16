// SPDX-License-Identifier: MIT
#pragma once

#include "Shell/SingleInstance.h"
#include "Shell/Translation.h"

#include <QApplication>

/// The application: one model, one window, one delegate and the event loop. It reads no command
/// line, so Qt's options have no effect.
class CavernyxPlatformerApp final
{
    Q_DECLARE_TR_FUNCTIONS(CavernyxPlatformerApp)

public:
    /// `programName` must outlive the application. Ends the program with one sentence and status 1
    /// if no display can be opened.
    explicit CavernyxPlatformerApp(char* programName);

    /// Runs until the player quits and returns the exit status. If another launcher serves the same
    /// installation, brings that to the front instead and returns at once. Ends with one sentence
    /// and status 1 if no folder is known for the installation.
    int run();

private:
    int run(SingleInstance& instance);
    SingleInstance::Start start(SingleInstance& instance);
    int runFirst(SingleInstance& instance);
    static void warn(const QString& sentence);

    int m_argumentCount = 1;
    char* m_arguments[2];
    /// The desktop's permission for a window of this start to come to the front.
    QByteArray m_activationToken;
    QApplication m_application;
    Translation m_translation;
};
