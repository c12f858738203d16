// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"
#include "System/OutputFile.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <stop_token>
#include <string>
#include <unordered_set>
#include <vector>

/// The files, folders and links that an archive is unpacked to, below one folder.
///
/// Links are made last, so that while files are written none of the archive's leads anywhere. Every
/// place is relative to the folder, and has been vetted.
class ZipTree final
{
public:
    /// Below the existing folder `destination`. Throws PlatformError.
    explicit ZipTree(const QString& destination);

    /// Makes the folder with missing parents; one that is there already will do. The empty place is
    /// the folder itself. Throws PlatformError.
    void makeFolder(const std::string& place);

    /// Creates the file, with the folders above. Throws PlatformError.
    OutputFile makeFile(const QByteArray& place, bool executable);

    void addLink(const QByteArray& place, const QByteArray& target);

    /// Makes the links that were added. Throws PlatformError, or Cancelled when `stop` is
    /// requested.
    void makeLinks(const std::stop_token& stop);

    /// The bytes that the file system has room for; nothing if it does not say.
    [[nodiscard]] std::optional<qint64> freeSpace() const;

private:
    struct Link
    {
        QByteArray place;
        QByteArray target;
    };

    void makeFolderAbove(const QByteArray& place);

    FileDescriptor m_folder;
    std::unordered_set<std::string> m_made;
    std::vector<Link> m_links;
};
