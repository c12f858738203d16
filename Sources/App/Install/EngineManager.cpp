// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include "Install/ArchiveInstallation.h"
#include "Install/ChecksumList.h"
#include "Install/FileDownloader.h"
#include "Install/Http/WebHost.h"
#include "Install/InstallTools.h"
#include "Install/Paths.h"
#include "Process/ManagedProcess.h"
#include "Project/GameFacts.h"
#include "System/Errors.h"
#include "System/InputFile.h"
#include "System/OffThread.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Sets the execute bit, which an archive may lack.
void makeExecutable(const QString& program)
{
    QFile::setPermissions(program, QFile::permissions(program) | QFileDevice::ExeOwner |
                                       QFileDevice::ExeGroup | QFileDevice::ExeOther);
}

/// Downloads the checksum list and returns the archive's digest.
QString readChecksum(const QString& archiveName, std::chrono::milliseconds stallTimeout,
                     const LogCallback& log, const std::stop_token& stop)
{
    log(u"Reading the official checksum list (SHA512-SUMS.txt)…"_s);
    const auto url = EngineManager::releaseURL(u"SHA512-SUMS.txt"_s);
    const auto list = ChecksumList::download(url, stallTimeout, stop);
    const auto digest = ChecksumList::digestFor(list, archiveName);
    if (!digest)
        throw AppError(AppError::tr("The checksum list has no entry for %1.").arg(archiveName));
    return *digest;
}

void verify(const InputFile& archive, const QString& expected, const LogCallback& log,
            const std::stop_token& stop)
{
    log(u"Checking the download against the official SHA-512 checksum…"_s);
    if (EngineManager::sha512(archive, stop) != expected) {
        throw AppError(AppError::tr(
            "The engine download did not match its official checksum, so it was discarded."));
    }
    log(u"Checksum OK."_s);
}

/// Removes the quarantine attribute of a downloaded program. Only logs a failure of the tool.
void clearQuarantine(const ToolCommand& tool, const LogCallback& log, const std::stop_token& stop)
{
    log(u"Removing macOS's \"downloaded from the internet\" flag from the engine. It was just "
        "verified against Godot's published checksum, and without this step macOS would block it "
        "from opening."_s);
    const auto status = runTool(tool.program, tool.arguments, log, stop);
    if (status != 0) {
        log(u"xattr finished with code %1 (usually harmless if the flag was not set)."_s.arg(
            status));
    }
}

QString installEngine(const EngineManager& manager, const FileDownloader& downloader,
                      const LogCallback& log, const std::stop_token& stop, const Platform& platform)
{
    const auto archiveName = manager.archiveName();
    const auto expected = readChecksum(archiveName, downloader.stallTimeout(), log, stop);
    installArchive(
        {.announcement = u"Downloading %1 from godotengine/godot releases…"_s.arg(archiveName),
         .url = [&] { return EngineManager::releaseURL(archiveName); },
         .target = manager.folder(),
         .beforeUnpacking = [&](const InputFile& archive) { verify(archive, expected, log, stop); },
         .finish =
             [&](const QString& staging) {
                 if (const auto tool = platform.clearQuarantineCommand(staging))
                     clearQuarantine(*tool, log, stop);
                 if (const auto program = platform.findEngineProgram(staging))
                     makeExecutable(*program);
             }},
        downloader, log, stop, platform);
    const auto program = manager.executable();
    if (!program)
        throw AppError(AppError::tr("The engine was unpacked but its program was not found."));
    return *program;
}

} // namespace

QString EngineManager::version()
{
    return GameFacts::engineVersion.toString();
}

QString EngineManager::buildName() const
{
    return version() + (mono ? u"-mono"_s : QString());
}

QString EngineManager::archiveName() const
{
    return u"Godot_v%1_%2"_s.arg(version(), hostPlatform().engineArchiveSuffix(mono));
}

QString EngineManager::folder() const
{
    return Paths::engines() + u'/' + buildName();
}

QString EngineManager::markerFile() const
{
    return Paths::game() + u"/.setup-v2-"_s + buildName();
}

QUrl EngineManager::releaseURL(const QString& fileName)
{
    const QUrl url(webHost() +
                       u"/godotengine/godot/releases/download/%1/%2"_s.arg(version(), fileName),
                   QUrl::StrictMode);
    if (!url.isValid())
        throw AppError(AppError::tr("Invalid engine URL."));
    return url;
}

QString EngineManager::sha512(const InputFile& file, const std::stop_token& stop)
{
    return installTools().sha512(file, stop);
}

std::optional<QString> EngineManager::executable() const
{
    return hostPlatform().findEngineProgram(folder());
}

QFuture<QString> EngineManager::install(std::shared_ptr<const FileDownloader> downloader,
                                        LogCallback log, std::stop_token stop,
                                        const Platform& platform) const
{
    return offThread([=, manager = *this, &platform] {
        return installEngine(manager, *downloader, log, stop, platform);
    });
}
