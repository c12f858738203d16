// SPDX-License-Identifier: MIT
#pragma once

#include "Support/ModelTest.h"

/// Nothing is installed; the host serves a game and a scripted engine.
class SetupTest : public ModelTest
{
protected:
    SetupTest();

    void serveGame(const QByteArray& project, const QByteArray& extraName = {});
    void serveScript(const QByteArray& script, const EngineManager& engine = {});

    void playToTheEnd();
    void expectNothingInstalled();

    /// How many requests had `path` in their first line.
    [[nodiscard]] qsizetype requestsOf(const QString& path) const;

    /// Imports the one asset and goes on running, as the real editor does; plays for half a second.
    static const QByteArray goodEngine;

    /// The status and the step after each change that made them others.
    QStringList steps;
};
