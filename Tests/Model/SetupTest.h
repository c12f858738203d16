// SPDX-License-Identifier: MIT
#pragma once

#include "Support/HttpServer.h"
#include "Support/ModelTest.h"
#include "Support/WebHostScope.h"

/// Nothing is installed; the servers of the game and the engine are a loopback one.
class SetupTest : public ModelTest
{
protected:
    SetupTest();

    void serveGame(const QByteArray& project, const QByteArray& extraName = {});
    /// `script` stands in the engine's archive, and in the list its right digest.
    void serveEngine(const QByteArray& script, const QString& name = engineName);
    void serveList(const QByteArray& list);

    void playToTheEnd();
    void expectNothingInstalled();

    [[nodiscard]] qsizetype requestsOf(const QString& path) const;
    [[nodiscard]] bool exists(const QString& relative) const;

    static const QString gamePath;
    static const QString releasePath;
    static const QString engineName;
    /// Imports the one asset and goes on running, as the real editor does; plays for half a second.
    static const QByteArray goodEngine;

    HttpServer server;
    /// The status and the step after each change that made them others.
    QStringList steps;

private:
    WebHostScope m_host;
};
