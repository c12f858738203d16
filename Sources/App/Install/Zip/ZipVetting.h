// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Zip/ZipEntry.h"

#include <QByteArray>

#include <cstddef>
#include <stop_token>
#include <string>
#include <unordered_map>

/// Decides whether an archive may be unpacked, from the headers of all its entries.
///
/// An archive of a game or an engine holds files, folders and links between them, each once. An
/// entry that could write or lead outside of the folder, overwrite another entry, or become a
/// device refuses the whole archive; so do more paths than a game can have, since all are kept in
/// memory.
class ZipVetting final
{
public:
    /// Takes the next entry. Throws ZipError when it must not be unpacked.
    void add(const ZipEntry& entry);

    /// Call it after the last entry. Throws ZipError if the entries are larger than the archive,
    /// because some share their content.
    void checkOverlap(qint64 archiveSize) const;

    /// Call it after the last entry. Throws ZipError when a link leads outside of the folder,
    /// through others or not; and Cancelled when `stop` is requested.
    void checkLinks(const std::stop_token& stop) const;

    /// The bytes that the files will take.
    [[nodiscard]] qint64 totalSize() const { return static_cast<qint64>(m_totalSize); }

    /// Returns the path of the entry in the folder: its name without "." and empty parts. It is
    /// empty for the folder itself. Throws ZipError for a name that leads elsewhere.
    static QByteArray entryPath(const ZipEntry& entry);

private:
    /// What the archive has at a path. A folder may be implied by the names of other entries.
    struct PathInfo
    {
        ZipEntry::Kind kind = ZipEntry::Kind::folder;
        bool hasOwnEntry = false;
        std::string target;
    };

    void addSizes(const ZipEntry& entry);
    void addFoldersAbove(const ZipEntry& entry, const std::string& path);
    void addPath(const ZipEntry& entry, const std::string& path);
    void countPath(std::size_t bytes);
    void checkLink(const std::string& link, int& stepsLeft, const std::stop_token& stop) const;

    std::unordered_map<std::string, PathInfo> m_paths;
    std::size_t m_rememberedBytes = 0;
    quint64 m_archivedSize = 0;
    quint64 m_totalSize = 0;
};
