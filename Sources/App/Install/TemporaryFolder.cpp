// SPDX-License-Identifier: MIT
#include "Install/TemporaryFolder.h"

#include "Platform/FileTree.h"
#include "Platform/PlatformError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

TemporaryFolder::TemporaryFolder(const QString& path)
    : m_path(path)
{
    QDir().mkpath(QFileInfo(path).path());
    const auto name = QFile::encodeName(path);
    if (::mkdir(name.constData(), S_IRWXU) != 0)
        throw PlatformError::fromErrno(
            QStringLiteral("create the temporary folder “%1”").arg(path), errno);
    // A file system without locks still gives a usable folder; it is then never cleared by others.
    m_lock = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_lock >= 0)
        ::flock(m_lock, LOCK_EX | LOCK_NB);
}

TemporaryFolder::TemporaryFolder(TemporaryFolder&& other) noexcept
    : m_path(std::exchange(other.m_path, QString()))
    , m_lock(std::exchange(other.m_lock, -1))
{
}

TemporaryFolder::~TemporaryFolder()
{
    remove();
}

void TemporaryFolder::remove() noexcept
{
    if (!m_path.isEmpty())
        FileTree::removeQuietly(std::exchange(m_path, QString()));
    if (m_lock >= 0)
        ::close(std::exchange(m_lock, -1));
}
