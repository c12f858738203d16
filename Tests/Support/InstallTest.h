// SPDX-License-Identifier: MIT
#pragma once

#include "Install/EngineManager.h"
#include "Install/FileDownloader.h"
#include "Support/CollectedLines.h"
#include "Support/EnvironmentScope.h"
#include "Support/HttpServer.h"
#include "Support/TestFolder.h"
#include "Support/WebHostScope.h"
#include "System/InstallationLock.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stop_token>

using namespace Qt::StringLiterals;

/// A test with its own home folder, web server and log.
class InstallTest : public testing::Test
{
protected:
    InstallTest();

    LogCallback log();
    /// All log lines so far.
    [[nodiscard]] QStringList lines() const { return m_lines.lines(); }
    /// Calls `action` when a line that contains `text` is logged, on the thread that logs it.
    void atLine(const QString& text, std::function<void()> action);
    /// Requests the stop when a line that contains `text` is logged.
    void stopAtLine(const QString& text);

    /// The path of `relative` below the storage root.
    [[nodiscard]] QString root(const QString& relative = {}) const;
    [[nodiscard]] bool exists(const QString& relative) const { return home.exists(root(relative)); }
    /// The names of the temporary, staging and backup folders.
    [[nodiscard]] QStringList stagingFolders() const;
    /// Waits until the worker pool is idle, then returns stagingFolders().
    [[nodiscard]] QStringList leftovers() const;
    /// Removes the folders that a cancelled installation has left.
    void clearLeftovers();

    /// Writes a game of the standard edition with one imported asset. `settings` are more lines for
    /// its project file.
    void installGame(const QByteArray& settings = {}) const;
    /// Adds 20,000 files to the game, so that deleting it takes time.
    void installManyFiles() const;
    /// Writes the shell script `body` as the engine.
    void installEngine(const QByteArray& body, const EngineManager& engine = {}) const;
    void writeMarker(const EngineManager& engine = {}) const;
    [[nodiscard]] static bool hasMarker(const EngineManager& engine = {});

    static QString gamePath();
    /// The URL path of a file of the engine's release.
    static QString releasePath(const QString& name);
    static QString listPath() { return releasePath(u"SHA512-SUMS.txt"_s); }
    static QString enginePath(const EngineManager& engine = {});
    /// The name of the engine's program in its archive.
    static QString programName(const EngineManager& engine = {});
    /// Serves the archive, and a checksum list with its digest.
    void serveEngine(const QByteArray& archive, const EngineManager& engine = {});
    void serveList(const QByteArray& list);

    TestFolder home;
    HttpServer server;
    InstallationLock lock{home.path(u"lock.lock"_s)};
    std::stop_source stop;
    std::shared_ptr<const FileDownloader> downloader =
        std::make_shared<const FileDownloader>([](const DownloadProgress&) {});

private:
    EnvironmentScope m_data{"XDG_DATA_HOME", home.makeFolder(u"data"_s).toUtf8()};
    EnvironmentScope m_temporary{"TMPDIR", home.makeFolder(u"temporary"_s).toUtf8()};
    WebHostScope m_host{server.host()};
    CollectedLines m_lines;
    QString m_lineText;
    std::function<void()> m_atLine;
};
