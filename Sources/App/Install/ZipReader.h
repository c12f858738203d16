// SPDX-License-Identifier: MIT
#pragma once

#include "Install/ZipDirectory.h"
#include "Install/ZipEntry.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class ZipError;
struct archive;

/// Reads the entries of a zip file in order.
///
/// It goes by the directory at the archive's end, and a file without one, a truncated one above
/// all, is refused: read from the front, an archive has no modes and no links. Anything the library
/// so much as warns about is an error, since a bad checksum is only a warning to it.
class ZipReader final
{
public:
    /// Throws ZipError when the file cannot be read or is no zip archive.
    explicit ZipReader(const QString& file);

    /// The next entry; nothing after the last. What was not read of the one before is skipped.
    /// Throws ZipError.
    std::optional<ZipEntry> next();

    /// The next bytes of the current entry, valid until the next call; none at its end. Throws
    /// ZipError, at the end also when the bytes do not have the checksum of the entry.
    QByteArrayView read();

private:
    struct Close
    {
        void operator()(archive* reader) const;
    };

    [[nodiscard]] ZipError damage() const;
    void correct(ZipEntry& entry);

    std::vector<ZipDirectoryEntry> m_directory;
    std::size_t m_position = 0;
    std::unique_ptr<archive, Close> m_reader;
};
