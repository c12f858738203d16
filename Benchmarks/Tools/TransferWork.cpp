// SPDX-License-Identifier: MIT
#include "TransferWork.h"

#include "Install/FileDownloader.h"
#include "Measurement.h"
#include "Process/LogStore.h"
#include "Process/ManagedProcess.h"

#include <QStringList>
#include <QUrl>

#include <limits>

void TransferWork::download(const QUrl& url, const QString& folder)
{
    const FileDownloader downloader([](const DownloadProgress&) {});
    const Measurement measurement;
    const auto file = downloader.start(url, folder, {});
    measurement.report(0);
}

void TransferWork::flood(const QString& program, const QStringList& arguments)
{
    LogStore log;
    const Measurement measurement;
    ManagedProcess().run(program, arguments, log.callback());
    measurement.report(log.newest(std::numeric_limits<int>::max()).size());
}
