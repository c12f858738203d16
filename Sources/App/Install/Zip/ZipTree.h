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

/// Creates the files, folders and links of an archive in one folder. Creates links last, so that no
/// file is written through a link. Paths are relative to the folder and must have been vetted.
class ZipTree final
{
public:
    /// Opens the existing folder `destination`. Throws PlatformError.
    explicit ZipTree(const QString& destination);

    /// Creates the folder and its missing parents. An existing folder is kept. An empty path means
    /// the destination. Throws PlatformError.
    void makeFolder(const std::string& path);

    /// Creates the file and its missing parents. Throws PlatformError.
    OutputFile makeFile(const QByteArray& path, bool executable);

    void addLink(const QByteArray& path, const QByteArray& target);

    /// Creates the links that were added. Throws PlatformError or Cancelled.
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
