// SPDX-License-Identifier: MIT
#include "System/DiskSpace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <limits>

#include <sys/stat.h>
#include <sys/statvfs.h>

std::optional<qint64> freeSpace(int descriptor)
{
    struct statvfs status = {};
    // Some network and FUSE file systems report no blocks.
    if (::fstatvfs(descriptor, &status) != 0 || status.f_blocks == 0)
        return std::nullopt;
    const auto bytes = static_cast<double>(status.f_bavail) * static_cast<double>(status.f_frsize);
    constexpr auto max = std::numeric_limits<qint64>::max();
    return bytes < static_cast<double>(max) ? static_cast<qint64>(bytes) : max;
}

dev_t deviceOf(QString path)
{
    struct stat status = {};
    while (::stat(QFile::encodeName(path).constData(), &status) != 0 && !QDir(path).isRoot())
        path = QFileInfo(path).path();
    return status.st_dev;
}
