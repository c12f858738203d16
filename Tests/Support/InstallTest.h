// SPDX-License-Identifier: MIT
#pragma once

#include "Install/FileDownloader.h"
#include "Process/LogStore.h"
#include "Support/EnvironmentScope.h"
#include "Support/HttpServer.h"
#include "Support/TestFolder.h"
#include "Support/WebHostScope.h"
#include "System/InstallationLock.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>

/// An installation with a home, a web host and a log of its own.
class InstallTest : public testing::Test
{
protected:
    InstallTest();

    LogCallback log();
    /// Everything logged so far.
    QStringList lines();
    /// Does `action` when a line that contains `text` is logged, on the thread that logs it.
    void atLine(const QString& text, std::function<void()> action);
    /// Requests the stop when a line that contains `text` is logged.
    void stopAtLine(const QString& text);

    /// A path below the storage root, relative to `home`.
    static QString root(const QString& relative);
    /// What is left in the temporary folder and the staging places.
    [[nodiscard]] QStringList leftovers() const;
    /// Has what a cancelled installation has left cleared away.
    void clearLeftovers();

    TestFolder home;
    HttpServer server;
    std::stop_source stop;
    std::shared_ptr<const FileDownloader> downloader =
        std::make_shared<const FileDownloader>([](const DownloadProgress&) {});

private:
    EnvironmentScope m_data;
    EnvironmentScope m_temporary;
    WebHostScope m_host;
    InstallationLock m_lock;
    std::mutex m_mutex;
    QStringList m_lines;
    QString m_lineText;
    std::function<void()> m_atLine;
};
