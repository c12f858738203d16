// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/ZipWriter.h"

/// Installs the engine from a release that a test puts together.
class EngineManagerTest : public InstallTest
{
protected:
    static QByteArray engineArchive(const QByteArray& program = "an engine")
    {
        return ZipWriter()
            .addFile("sub/readme", "x")
            .addFile(programName().toUtf8(), program)
            .archive();
    }
    QFuture<QString> startInstall() { return engine.install(downloader, log(), stop.get_token()); }
    Outcome<QString> install() { return eventually(startInstall()); }
    /// The path of `name` in the engine's folder.
    [[nodiscard]] QString installed(const QString& name) const
    {
        return engine.folder() + u'/' + name;
    }
    [[nodiscard]] QByteArray installedProgram() const
    {
        return home.read(installed(programName()));
    }
    void installOldEngine() const { home.write(installed(u"old godot"_s)); }
    void expectOldEngine() const
    {
        EXPECT_EQ(home.names(engine.folder()), QStringList{u"old godot"_s});
        EXPECT_EQ(leftovers(), QStringList());
    }

    static inline const auto readingList =
        u"Reading the official checksum list (SHA512-SUMS.txt)…"_s;
    static inline const auto checking =
        u"Checking the download against the official SHA-512 checksum…"_s;
    static inline const auto checksumOk = u"Checksum OK."_s;
    static inline const auto mismatch =
        u"The engine download did not match its official checksum, so it was discarded."_s;

    EngineManager engine;
};
