// SPDX-License-Identifier: MIT
#pragma once

#include "Install/FileDownloader.h"
#include "Support/Eventually.h"
#include "Support/HttpServer.h"
#include "Support/TestFolder.h"
#include "Support/WebHostScope.h"

#include <gtest/gtest.h>

#include <QList>

#include <chrono>
#include <stop_token>

/// Downloads into a folder of its own from a server that a test makes answer.
class FileDownloaderTest : public testing::Test
{
protected:
    /// The path of the downloaded file, if there is one.
    Outcome<QString> download(const QUrl& url, std::chrono::milliseconds stallTimeout = limit)
    {
        const FileDownloader downloader([this](const DownloadProgress& now) { note(now); },
                                        stallTimeout);
        return outcomeOf(
            [&] { return downloader.start(url, folder.path(), stop.get_token()).path(); });
    }
    Outcome<QString> download(const QString& path, std::chrono::milliseconds stallTimeout = limit)
    {
        return download(server.url(path), stallTimeout);
    }

    void note(const DownloadProgress& now)
    {
        progress.append(now);
        if (onProgress)
            onProgress();
    }

    static constexpr std::chrono::milliseconds limit = std::chrono::seconds{60};
    TestFolder folder;
    HttpServer server;
    const WebHostScope host{server.host()};
    std::stop_source stop;
    QList<DownloadProgress> progress;
    std::function<void()> onProgress;
};
