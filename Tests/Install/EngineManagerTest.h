// SPDX-License-Identifier: MIT
#pragma once

#include "Install/EngineManager.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/ZipWriter.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

/// Installs the engine from a release that a test puts together.
class EngineManagerTest : public InstallTest
{
protected:
    static QString releasePath(const QString& name)
    {
        return u"/godotengine/godot/releases/download/3.5.3-stable/"_s + name;
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
        server.on(releasePath(u"SHA512-SUMS.txt"_s), HttpServer::reply(200, list));
    }
    void serve(const QByteArray& archive)
    {
        const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
        serveList("aa  other.zip\n" + digest.toUpper() + " *" + engine.archiveName().toUtf8() +
                  '\n');
        server.on(releasePath(engine.archiveName()), HttpServer::reply(200, archive));
    }
    QFuture<QString> startInstall() { return engine.install(downloader, log(), stop.get_token()); }
    Outcome<QString> install() { return eventually(startInstall()); }
    QString installed(const QString& name = {}) const
    {
        return root(u"Engine/3.5.3-stable"_s + (engine.mono ? u"-mono/"_s : u"/"_s) + name);
    }
    void installOldEngine() const { home.write(installed(u"old godot"_s)); }
    void expectOldEngine() const
    {
        EXPECT_EQ(home.names(installed()), QStringList{u"old godot"_s});
        EXPECT_EQ(leftovers(), QStringList());
    }

    EngineManager engine;
};
