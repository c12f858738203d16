// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Zip/ZipEntry.h"

#include <QByteArrayView>

#include <memory>
#include <span>

class InputFile;
struct zip;
struct zip_file;

/// A zip archive that is open for reading.
///
/// It reads the directory at the archive's end. An archive whose local headers contradict the
/// directory, and one without a directory, a truncated one above all, is refused.
class ZipArchive final
{
public:
    /// The content of one entry, read from its beginning to its end.
    class Content final
    {
    public:
        /// Reads into `buffer` and returns what was read; nothing at the end. Throws ZipError, at
        /// the end also if the content does not have the checksum of the entry.
        QByteArrayView read(std::span<char> buffer);

    private:
        friend ZipArchive;
        struct Close
        {
            void operator()(zip_file* file) const;
        };
        std::unique_ptr<zip_file, Close> m_file;
        QString m_shownName;
    };

    /// Far above any real game.
    static constexpr quint64 maxEntries = 500'000;

    /// Throws ZipError if `file` is no zip archive or has more than `maxEntries`, PlatformError if
    /// it cannot be read.
    explicit ZipArchive(const InputFile& file);

    [[nodiscard]] quint64 entryCount() const;
    /// The headers of the entry at `index`, and a link's target. Throws ZipError.
    [[nodiscard]] ZipEntry entry(quint64 index) const;
    /// Throws ZipError.
    [[nodiscard]] Content open(quint64 index, const ZipEntry& entry) const;

private:
    struct Discard
    {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Discard> m_zip;
};
