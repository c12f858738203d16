// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Zip/ZipEntry.h"

#include <QByteArrayView>

#include <memory>
#include <span>

class InputFile;
struct zip;
struct zip_file;

/// A zip archive, open for reading. An archive without a central directory (such as a truncated
/// one), or whose local headers differ from it, is refused.
class ZipArchive final
{
public:
    /// The content of one entry, read from its beginning to its end.
    class Content final
    {
    public:
        /// Reads into `buffer` and returns what was read; empty at the end. Throws ZipError, at the
        /// end also for a wrong checksum.
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

    /// Far more than any real game has.
    static constexpr quint64 maxEntries = 500'000;

    /// Throws ZipError if `file` is no valid zip archive or has more than `maxEntries` entries;
    /// PlatformError if it cannot be read.
    explicit ZipArchive(const InputFile& file);

    [[nodiscard]] quint64 entryCount() const;
    /// Reads the headers of the entry at `index`, and the target of a link. Throws ZipError.
    [[nodiscard]] ZipEntry entry(quint64 index) const;
    /// Opens the content of the entry at `index`. Throws ZipError.
    [[nodiscard]] Content open(quint64 index, const ZipEntry& entry) const;

private:
    struct Discard
    {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Discard> m_zip;
};
