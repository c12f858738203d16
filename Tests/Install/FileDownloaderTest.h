// SPDX-License-Identifier: MIT
#pragma once

#include "Install/FileDownloader.h"
#include "Support/Eventually.h"
#include "Support/HttpServer.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QList>

#include <chrono>
#include <mutex>
#include <thread>

/// Downloads into a folder of its own from a server that a test makes answer.
class FileDownloaderTest : public testing::Test
{
protected:
    Outcome<QString> download(const QUrl& url)
    {
        return eventually(m_downloader.start(url, folder.path()));
    }
    Outcome<QString> download(const QString& path) { return download(server.url(path)); }
    /// The same, if the server may be silent for `limit` only.
    Outcome<QString> downloadWithin(std::chrono::milliseconds limit, const QString& path)
    {
        FileDownloader impatient([this](const DownloadProgress& now) { remember(now); }, limit);
        return eventually(impatient.start(server.url(path), folder.path()));
    }

    void remember(const DownloadProgress& progress)
    {
        const std::lock_guard lock(m_mutex);
        m_progress.append(progress);
        m_progressThread = std::this_thread::get_id();
    }
    QList<DownloadProgress> progress()
    {
        const std::lock_guard lock(m_mutex);
        return m_progress;
    }

    TestFolder folder;
    HttpServer server;
    std::mutex m_mutex;
    QList<DownloadProgress> m_progress;
    std::thread::id m_progressThread;
    FileDownloader m_downloader{[this](const DownloadProgress& now) { remember(now); }};
};
