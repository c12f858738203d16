// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipExtractor.h"

#include "Install/Zip/ZipArchive.h"
#include "Install/Zip/ZipTree.h"
#include "Install/Zip/ZipVetting.h"
#include "System/ByteCount.h"
#include "System/Errors.h"
#include "System/InputFile.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <optional>
#include <span>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t bufferSize = 131'072;

/// Returns all entries. Throws ZipError if the archive must not be unpacked.
std::vector<ZipEntry> vetted(const ZipArchive& archive, qint64 archiveSize,
                             const QString& destination, std::optional<qint64> freeSpace,
                             const std::stop_token& stop)
{
    if (archive.entryCount() == 0)
        throw ZipError(u"The archive is empty."_s);
    ZipVetting vetting;
    std::vector<ZipEntry> entries;
    for (quint64 index = 0; index < archive.entryCount(); ++index) {
        throwIfCancelled(stop);
        entries.push_back(archive.entry(index));
        vetting.add(entries.back());
    }
    vetting.checkOverlap(archiveSize);
    vetting.checkLinks(stop);
    if (freeSpace && vetting.totalSize() > *freeSpace) {
        throw ZipError(
            u"The archive unpacks to %1, which is %2 more than what is free in “%3”."_s.arg(
                formattedByteCount(vetting.totalSize()),
                formattedByteCount(vetting.totalSize() - *freeSpace),
                QFileInfo(destination).path()));
    }
    return entries;
}

/// Throws ZipError if the content is not as long as announced, which is what the free space was
/// checked for.
void unpackFile(ZipArchive::Content&& content, const ZipEntry& entry, OutputFile&& file,
                std::span<char> buffer, const std::stop_token& stop)
{
    quint64 written = 0;
    while (true) {
        throwIfCancelled(stop);
        const auto piece = content.read(buffer);
        if (piece.isEmpty())
            break;
        written += static_cast<quint64>(piece.size());
        if (written > entry.size)
            break;
        file.write(piece);
    }
    if (written != entry.size)
        throw ZipError(
            u"The archive entry “%1” does not have its announced size."_s.arg(entry.shownName()));
    file.close();
}

void unpack(const ZipArchive& archive, const std::vector<ZipEntry>& entries, ZipTree& tree,
            const std::stop_token& stop)
{
    std::vector<char> buffer(bufferSize);
    for (quint64 index = 0; index < entries.size(); ++index) {
        throwIfCancelled(stop);
        const auto& entry = entries[index];
        const auto path = ZipVetting::entryPath(entry);
        if (entry.kind == ZipEntry::Kind::folder)
            tree.makeFolder(path.toStdString());
        else if (entry.kind == ZipEntry::Kind::file)
            unpackFile(archive.open(index, entry), entry, tree.makeFile(path, entry.isExecutable),
                       buffer, stop);
    }
    // Last, so that no file is written through a link.
    for (const auto& entry : entries) {
        throwIfCancelled(stop);
        if (entry.kind == ZipEntry::Kind::link)
            tree.makeLink(ZipVetting::entryPath(entry), entry.target);
    }
}

/// Returns the memory used for a large archive to the system.
void trimMemory()
{
#if defined(__GLIBC__)
    ::malloc_trim(0);
#endif
}

} // namespace

int ZipExtractor::extract(const InputFile& file, const QString& destination, const LogCallback& log,
                          const std::stop_token& stop)
{
    const auto trim = qScopeGuard(trimMemory);
    try {
        ZipTree tree(destination);
        const ZipArchive archive(file);
        unpack(archive, vetted(archive, file.size(), destination, tree.freeSpace(), stop), tree,
               stop);
        return 0;
    } catch (const ZipError& error) {
        log(error.message());
    } catch (const PlatformError& error) {
        log(error.message());
    }
    return 1;
}
