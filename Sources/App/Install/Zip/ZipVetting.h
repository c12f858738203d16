// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Zip/ZipArchive.h"

#include <QByteArray>

#include <cstddef>
#include <stop_token>
#include <string>
#include <unordered_map>

/// Decides from the headers of all entries whether an archive may be unpacked.
///
/// Refuses the whole archive if an entry is neither a file, a folder nor a link, if a path or a
/// link leads outside of the folder, if a path occurs twice, or if there are more paths than a game
/// can have, since all are kept in memory.
class ZipVetting final
{
public:
    /// Adds the next entry. Throws ZipError if it must not be unpacked.
    void add(const ZipEntry& entry);

    /// Call it after the last entry. Throws ZipError if the entries are larger than the archive, so
    /// that some must overlap.
    void checkOverlap(qint64 archiveSize) const;

    /// Call it after the last entry. Throws ZipError if a link leads outside of the folder,
    /// directly or through other links; Cancelled when `stop` is requested.
    void checkLinks(const std::stop_token& stop) const;

    /// The size of all files in bytes.
    [[nodiscard]] qint64 totalSize() const { return static_cast<qint64>(m_totalSize); }

    /// Returns the relative path of the entry: its name without "." and empty parts; empty for the
    /// folder itself. Throws ZipError if the name leads outside of the folder.
    static QByteArray entryPath(const ZipEntry& entry);

private:
    /// What is at a path. A folder may have no entry of its own.
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
