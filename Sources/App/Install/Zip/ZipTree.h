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
/// Links are made last, so that no file is written through one. Paths are relative to the folder
/// and must have been vetted.
class ZipTree final
{
public:
    /// Below the existing folder `destination`. Throws PlatformError.
    explicit ZipTree(const QString& destination);

    /// Creates the folder and its missing parents. An existing folder is kept. An empty path means
    /// the folder itself. Throws PlatformError.
    void makeFolder(const std::string& path);

    /// Creates the file, with the folders above. Throws PlatformError.
    OutputFile makeFile(const QByteArray& path, bool executable);

    void addLink(const QByteArray& path, const QByteArray& target);

    /// Creates the links that were added. Throws PlatformError, or Cancelled when `stop` is
    /// requested.
    void makeLinks(const std::stop_token& stop);

    /// The free bytes of the file system; nothing if unknown.
    [[nodiscard]] std::optional<qint64> freeSpace() const;

private:
    struct Link
    {
        QByteArray path;
        QByteArray target;
    };

    void makeFolderAbove(const QByteArray& path);

    FileDescriptor m_folder;
    std::unordered_set<std::string> m_made;
    std::vector<Link> m_links;
};
