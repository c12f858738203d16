// SPDX-License-Identifier: MIT
#include "Install/ZipExtractor.h"

#include "Install/ZipError.h"
#include "Install/ZipReader.h"
#include "Install/ZipTree.h"
#include "Install/ZipVetting.h"
#include "Platform/ByteCount.h"
#include "Platform/Cancelled.h"
#include "Platform/PlatformError.h"
#include "Platform/Utf8Names.h"

namespace {

/// Gives the bytes that the unpacked archive takes.
qint64 vet(const QString& archive, const std::stop_token& stop)
{
    ZipReader reader(archive);
    ZipVetting vetting;
    while (const auto entry = reader.next()) {
        throwIfCancelled(stop);
        vetting.add(*entry);
    }
    vetting.checkLinks(stop);
    return vetting.totalSize();
}

void checkSpace(qint64 needed, qint64 available)
{
    if (needed > available)
        throw ZipError(QStringLiteral("The archive unpacks to %1, and there is room for only %2.")
                           .arg(formattedByteCount(needed), formattedByteCount(available)));
}

/// The bytes on disk are exactly those that were announced, and that the space was checked for.
void unpackFile(ZipReader& reader, const ZipEntry& entry, OutputFile&& file,
                const std::stop_token& stop)
{
    qint64 written = 0;
    while (true) {
        throwIfCancelled(stop);
        const auto block = reader.read();
        if (block.isEmpty())
            break;
        written += block.size();
        if (written > entry.size)
            break;
        file.write(block);
    }
    if (written != entry.size)
        throw ZipError(QStringLiteral("The archive entry “%1” does not have its announced size.")
                           .arg(entry.shownName()));
    file.close();
}

void unpack(const QString& archive, ZipTree& tree, const std::stop_token& stop)
{
    ZipReader reader(archive);
    while (const auto entry = reader.next()) {
        throwIfCancelled(stop);
        const auto place = ZipVetting::placeOf(*entry);
        switch (entry->kind) {
        case ZipEntry::Kind::file:
            unpackFile(reader, *entry, tree.makeFile(place, entry->executable), stop);
            break;
        case ZipEntry::Kind::folder:
            tree.makeFolder(place.toStdString());
            break;
        case ZipEntry::Kind::link:
            tree.addLink(place, entry->target);
            break;
        case ZipEntry::Kind::other:
            break;
        }
    }
    tree.makeLinks(stop);
}

} // namespace

int ZipExtractor::extract(const QString& archive, const QString& destination,
                          const LogCallback& log, const std::stop_token& stop)
{
    try {
        const Utf8Names utf8Names;
        ZipTree tree(destination);
        checkSpace(vet(archive, stop), tree.freeSpace());
        unpack(archive, tree, stop);
        return 0;
    } catch (const ZipError& error) {
        log(error.message());
    } catch (const PlatformError& error) {
        log(error.message());
    }
    return 1;
}
