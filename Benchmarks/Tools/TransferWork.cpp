// SPDX-License-Identifier: MIT
#include "TransferWork.h"

#include "Install/FileDownloader.h"
#include "Measurement.h"
#include "Process/LogStore.h"
#include "Process/ManagedProcess.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QStringList>
#include <QUrl>

#include <limits>

namespace {

/// Runs the event loop until `future` has its result, and gives it.
template<typename Result>
Result waitFor(const QFuture<Result>& future)
{
    QEventLoop loop;
    QFutureWatcher<Result> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(future);
    loop.exec();
    return future.result();
}

} // namespace

void TransferWork::download(const QUrl& url, const QString& folder)
{
    FileDownloader downloader([](const DownloadProgress&) {});
    const Measurement measurement;
    waitFor(downloader.start(url, folder));
    measurement.report(0);
}

void TransferWork::flood(const QString& program, const QStringList& arguments)
{
    LogStore log;
    ManagedProcess child;
    const Measurement measurement;
    waitFor(child.run(program, arguments, log.callback()));
    measurement.report(log.newest(std::numeric_limits<int>::max()).size());
}
