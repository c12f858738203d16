// SPDX-License-Identifier: MIT
#include "System/InstallationLock.h"

#include "System/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The offset of the byte that each role locks. The file may be shorter.
enum class Role : off_t { launcher = 0, game = 1 };

struct flock lockOf(Role role)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<off_t>(role);
    lock.l_len = 1;
    return lock;
}

bool tryLock(int descriptor, Role role)
{
    auto lock = lockOf(role);
    return ::fcntl(descriptor, F_SETLK, &lock) == 0;
}

} // namespace

InstallationLock::InstallationLock(const QString& path)
    : m_path(path)
{
    open();
}

InstallationLock::~InstallationLock()
{
    release();
}

void InstallationLock::release()
{
    // Removed while still locked: a process that then locks the removed file notices, and creates a
    // new one.
    if (isHeld() && !isGameRunning())
        QFile::remove(m_path);
    m_file.close();
    m_isLocked = false;
}

void InstallationLock::open()
{
    QDir().mkpath(QFileInfo(m_path).path());
    m_isLocked = false;
    m_file = FileDescriptor(::open(QFile::encodeName(m_path).constData(),
                                   O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    m_error = m_file.isOpen() ? 0 : errno;
}

bool InstallationLock::tryAcquire()
{
    while (!isHeld()) {
        if (!isStillThere()) {
            // A new file would not show the lock of a game that was started with the old one.
            if (isGameRunning()) {
                m_error = EBUSY;
                return false;
            }
            open();
            if (!m_file.isOpen())
                return false;
        }
        m_isLocked = tryLock(m_file.get(), Role::launcher);
        m_error = m_isLocked ? 0 : errno;
        if (!m_isLocked)
            return false;
    }
    return true;
}

void InstallationLock::acquire()
{
    if (tryAcquire())
        return;
    if (isHeldByOther())
        throw PlatformError(
            PlatformError::tr("The launcher is running a second time. Close the other one first."));
    throw PlatformError::fromErrno(
        PlatformError::tr("Could not lock “%1”, without which nothing is installed or removed")
            .arg(m_path),
        m_error);
}

bool InstallationLock::isHeldByOther() const
{
    return m_file.isOpen() && (m_error == EACCES || m_error == EAGAIN);
}

bool InstallationLock::isHeld() const
{
    return m_isLocked && isStillThere();
}

bool InstallationLock::isStillThere() const
{
    return isSameFile(m_file, QFile::encodeName(m_path).constData());
}

bool InstallationLock::isGameRunning() const
{
    auto lock = lockOf(Role::game);
    return m_file.isOpen() && ::fcntl(m_file.get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

void InstallationLock::acquireAsGame(int descriptor) noexcept
{
    // Clears close-on-exec instead of duplicating the descriptor: closing either would release the
    // lock.
    if (::fcntl(descriptor, F_SETFD, 0) == 0)
        std::ignore = tryLock(descriptor, Role::game);
}
