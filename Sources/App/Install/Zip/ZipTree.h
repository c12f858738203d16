// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"
#include "System/OutputFile.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <unordered_set>

/// Creates the files, folders and links of an archive in one folder. Paths are relative to the
/// folder and must have been vetted.
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

    /// Creates the link and its missing parents. Throws PlatformError.
    void makeLink(const QByteArray& path, const QByteArray& target);

    /// The free bytes of the file system; nothing if unknown.
    [[nodiscard]] std::optional<qint64> freeSpace() const;

private:
    void makeFolderAbove(const QByteArray& path);

    FileDescriptor m_folder;
    std::unordered_set<std::string> m_made;
};
