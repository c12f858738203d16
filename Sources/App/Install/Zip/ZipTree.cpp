// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipTree.h"

#include "System/DiskSpace.h"
#include "System/Errors.h"
#include "System/FolderListing.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t executableMode = 0755;
constexpr mode_t plainMode = 0644;

} // namespace

ZipTree::ZipTree(const QString& destination)
    : m_folder(openFolder(destination))
{
    if (!m_folder.isOpen())
        throw PlatformError::fromErrno(
            PlatformError::tr("Could not open the folder “%1”").arg(destination), errno);
}

void ZipTree::makeFolder(const std::string& path)
{
    if (path.empty() || m_made.contains(path))
        return;
    const auto slash = path.rfind('/');
    if (slash != std::string::npos)
        makeFolder(path.substr(0, slash));
    if (::mkdirat(m_folder.get(), path.c_str(), executableMode) != 0) {
        const auto reason = errno;
        if (reason != EEXIST || !isFolder(m_folder.get(), path)) {
            throw PlatformError::fromErrno(PlatformError::tr("Could not create the folder “%1”")
                                               .arg(QString::fromStdString(path)),
                                           reason);
        }
    }
    m_made.insert(path);
}

OutputFile ZipTree::makeFile(const QByteArray& path, bool executable)
{
    makeFolderAbove(path);
    return OutputFile(m_folder.get(), path, executable ? executableMode : plainMode);
}

void ZipTree::makeLink(const QByteArray& path, const QByteArray& target)
{
    makeFolderAbove(path);
    if (::symlinkat(target.constData(), m_folder.get(), path.constData()) != 0) {
        throw PlatformError::fromErrno(
            PlatformError::tr("Could not create the link “%1”").arg(QFile::decodeName(path)),
            errno);
    }
}

std::optional<qint64> ZipTree::freeSpace() const
{
    return ::freeSpace(m_folder.get());
}

void ZipTree::makeFolderAbove(const QByteArray& path)
{
    const auto slash = path.lastIndexOf('/');
    if (slash > 0)
        makeFolder(path.first(slash).toStdString());
}
