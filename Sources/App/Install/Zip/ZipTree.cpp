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
    : m_folder(
          ::open(QFile::encodeName(destination).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (!m_folder.isOpen())
        throw PlatformError::fromErrno(PlatformError::tr("open the folder “%1”").arg(destination),
                                       errno);
}

void ZipTree::makeFolder(const std::string& place)
{
    if (place.empty() || m_made.contains(place))
        return;
    const auto slash = place.rfind('/');
    if (slash != std::string::npos)
        makeFolder(place.substr(0, slash));
    if (::mkdirat(m_folder.get(), place.c_str(), executableMode) != 0) {
        const auto reason = errno;
        if (reason != EEXIST || !isFolder(m_folder.get(), place)) {
            throw PlatformError::fromErrno(
                PlatformError::tr("create the folder “%1”").arg(QString::fromStdString(place)),
                reason);
        }
    }
    m_made.insert(place);
}

OutputFile ZipTree::makeFile(const QByteArray& place, bool executable)
{
    makeFolderAbove(place);
    return OutputFile(m_folder.get(), place, executable ? executableMode : plainMode);
}

void ZipTree::addLink(const QByteArray& place, const QByteArray& target)
{
    m_links.push_back({place, target});
}

void ZipTree::makeLinks(const std::stop_token& stop)
{
    for (const auto& link : m_links) {
        throwIfCancelled(stop);
        makeFolderAbove(link.place);
        if (::symlinkat(link.target.constData(), m_folder.get(), link.place.constData()) != 0) {
            throw PlatformError::fromErrno(
                PlatformError::tr("create the link “%1”").arg(QFile::decodeName(link.place)),
                errno);
        }
    }
}

std::optional<qint64> ZipTree::freeSpace() const
{
    return ::freeSpace(m_folder.get());
}

void ZipTree::makeFolderAbove(const QByteArray& place)
{
    const auto slash = place.lastIndexOf('/');
    if (slash > 0)
        makeFolder(place.first(slash).toStdString());
}
