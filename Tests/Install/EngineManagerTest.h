// SPDX-License-Identifier: MIT
#pragma once

#include "Install/EngineManager.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/ZipWriter.h"

#include <QCryptographicHash>

/// Installs the engine from a release that a test puts together.
class EngineManagerTest : public InstallTest
{
protected:
    static QString releasePath(const QString& name)
    {
        return QStringLiteral("/godotengine/godot/releases/download/3.5.3-stable/") + name;
    }
    static QByteArray engineArchive(const QByteArray& program = "an engine")
    {
        return ZipWriter()
            .addFile("sub/readme", "x")
            .addFile("Godot_v3.5.3-stable_x11.64", program)
            .archive();
    }
    void serveList(const QByteArray& list)
    {
        server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::reply(200, list));
    }
    void serve(const QByteArray& archive)
    {
        const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
        serveList("aa  other.zip\n" + digest.toUpper() + " *" + engine.archiveName().toUtf8() +
                  '\n');
        server.on(releasePath(engine.archiveName()), HttpServer::reply(200, archive));
    }
    QCoro::Task<QString> startInstall()
    {
        return engine.install(downloader, log(), stop.get_token());
    }
    Outcome<QString> install() { return eventually(startInstall()); }
    QString installed(const QString& name = {}) const
    {
        return root(QStringLiteral("Engine/3.5.3-stable") +
                    (engine.mono ? QStringLiteral("-mono/") : QStringLiteral("/")) + name);
    }
    void installOldEngine() const { home.write(installed(QStringLiteral("old godot"))); }
    void expectOldEngine() const
    {
        EXPECT_EQ(home.names(installed()), QStringList{QStringLiteral("old godot")});
        EXPECT_EQ(leftovers(), QStringList());
    }

    EngineManager engine;
};
