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
/// An honest archive of a game or an engine holds files, folders and links between them, each once.
/// Whatever could write or lead outside of the folder, overwrite another entry, or come to life as
/// something other than that, makes the whole archive untrustworthy; so does one with more places
/// than a game can have, since all of them are kept in memory.
class ZipVetting final
{
public:
    /// Takes the next entry. Throws ZipError when it must not be unpacked.
    void add(const ZipEntry& entry);

    /// To be called after the last entry. Throws ZipError if the entries take more room than the
    /// archive has, as those do that share their content.
    void checkOverlap(qint64 archiveSize) const;

    /// To be called after the last entry, when all links are known. Throws ZipError when one leads
    /// outside of the folder, through others or not; and Cancelled when `stop` is requested.
    void checkLinks(const std::stop_token& stop) const;

    /// The bytes that the files will take.
    [[nodiscard]] qint64 totalSize() const { return static_cast<qint64>(m_totalSize); }

    /// Where in the folder an entry of this name belongs: the name without "." and empty parts. It
    /// is empty for the folder itself. Throws ZipError for a name that leads elsewhere.
    static QByteArray entryPath(const ZipEntry& entry);

private:
    /// What stands at a place; a folder is also one that only the names of others imply.
    struct Place
    {
        ZipEntry::Kind kind = ZipEntry::Kind::folder;
        bool hasOwnEntry = false;
        std::string target;
    };

    void addSizes(const ZipEntry& entry);
    void addFoldersAbove(const ZipEntry& entry, const std::string& place);
    void addPlace(const ZipEntry& entry, const std::string& place);
    void countPlace(std::size_t bytes);
    void checkLink(const std::string& link, int& stepsLeft, const std::stop_token& stop) const;

    std::unordered_map<std::string, Place> m_places;
    std::size_t m_rememberedBytes = 0;
    quint64 m_archivedSize = 0;
    quint64 m_totalSize = 0;
};
