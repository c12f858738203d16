// SPDX-License-Identifier: MIT
#include "Install/TemporaryFolder.h"

#include "System/Errors.h"
#include "System/FileTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FileDescriptor openFolder(const QByteArray& name)
{
    return FileDescriptor(
        ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

bool isOwnFolder(const FileDescriptor& folder)
{
    struct stat status = {};
    return ::fstat(folder.get(), &status) == 0 && status.st_uid == ::geteuid();
}

bool isRemoved(const FileDescriptor& folder)
{
    struct stat status = {};
    return ::fstat(folder.get(), &status) == 0 && status.st_nlink == 0;
}

} // namespace

TemporaryFolder::TemporaryFolder(const QString& path)
    : m_path(path)
{
    QDir().mkpath(QFileInfo(path).path());
    const auto name = QFile::encodeName(path);
    do {
        if (::mkdir(name.constData(), S_IRWXU) != 0)
            throw PlatformError::fromErrno(
                PlatformError::tr("Could not create the temporary folder “%1”").arg(path), errno);
        m_lock = openFolder(name);
        // Another launcher may remove the folder before it is locked. A failure to lock is ignored:
        // other launchers then never remove the folder.
        ::flock(m_lock.get(), LOCK_EX);
    } while (isRemoved(m_lock) || !FileTree::exists(path));
}

TemporaryFolder::TemporaryFolder(TemporaryFolder&& other) noexcept
    : m_path(std::exchange(other.m_path, QString()))
    , m_lock(std::move(other.m_lock))
{
}

TemporaryFolder::~TemporaryFolder()
{
    remove();
}

void TemporaryFolder::remove() noexcept
{
    if (!m_path.isEmpty())
        FileTree::removeBestEffort(std::exchange(m_path, QString()));
    m_lock.close();
}

void TemporaryFolder::removeIfAbandoned(const QString& path) noexcept
{
    const auto name = QFile::encodeName(path);
    const auto folder = openFolder(name);
    if (!folder.isOpen() || !isOwnFolder(folder) || ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0)
        return;
    // Its owner may have created the folder again before it was locked here.
    if (isSameFile(folder, name.constData()))
        FileTree::removeBestEffort(path);
}
