// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QStringList>

#include <filesystem>

/// Returns the names in `folder`, in the file system's order.
inline QStringList listing(const QString& folder)
{
    QStringList names;
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    for (const auto& entry : std::filesystem::directory_iterator(path))
        names.append(QFile::decodeName(entry.path().filename().c_str()));
    return names;
}
