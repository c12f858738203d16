// SPDX-License-Identifier: MIT
#include "Install/ArchiveInstallation.h"

#include "Install/FileDownloader.h"
#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Install/Unzipper.h"
#include "System/Errors.h"
#include "System/FileTree.h"

#include <QFileInfo>

namespace {

/// A new path beside `target`. The destructor removes the folder there, unless `stop` has been
/// requested: a cancel must not wait for that.
class StagingFolder final
{
public:
    StagingFolder(const QString& target, const std::stop_token& stop)
        : m_path(Paths::newStagingFolder(target))
        , m_stop(stop)
    {
    }
    ~StagingFolder() { FileTree::removeBestEffort(m_path, m_stop); }

    StagingFolder(const StagingFolder&) = delete;
    StagingFolder& operator=(const StagingFolder&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }

private:
    const QString m_path;
    const std::stop_token& m_stop;
};

} // namespace

void installArchive(const ArchiveInstallation& what, const FileDownloader& downloader,
                    const LogCallback& log, const std::stop_token& stop, const Platform& platform)
{
    const auto temporary = Paths::newTempDir();
    log(what.announcement);
    const auto archive = downloader.start(what.url(), temporary.path(), stop);
    what.beforeUnpacking(archive);
    Paths::ensure(QFileInfo(what.target).path());
    const StagingFolder staging(what.target, stop);
    Unzipper::unzip(archive, staging.path(), log, stop, platform);
    what.finish(staging.path());
    FileTree::replace(what.target, staging.path(), Paths::newBackupFolder(what.target), stop);
}
