// SPDX-License-Identifier: MIT
#include "System/OutputFile.h"

#include "System/Errors.h"

#include <QFile>

#include <cerrno>

#include <unistd.h>

OutputFile::OutputFile(const QString& path, mode_t mode)
    : OutputFile(AT_FDCWD, QFile::encodeName(path), mode)
{
}

OutputFile::OutputFile(int folder, const QByteArray& name, mode_t mode)
    : m_name(name)
    , m_descriptor(::openat(folder, name.constData(),
                            O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode))
{
    if (!m_descriptor.isOpen())
        throw PlatformError::fromErrno(PlatformError::tr("Could not create “%1”").arg(shownName()),
                                       errno);
}

void OutputFile::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const auto written =
            ::write(m_descriptor.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written >= 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR)
            throw PlatformError::fromErrno(
                PlatformError::tr("Could not write “%1”").arg(shownName()), errno);
    }
}

void OutputFile::close()
{
    // A close() that fails, also with EINTR, has released the descriptor.
    if (::close(m_descriptor.release()) != 0 && errno != EINTR)
        throw PlatformError::fromErrno(PlatformError::tr("Could not write “%1”").arg(shownName()),
                                       errno);
}

FileDescriptor OutputFile::closeForReading()
{
    FileDescriptor reading(::fcntl(m_descriptor.get(), F_DUPFD_CLOEXEC, 0));
    if (!reading.isOpen())
        throw PlatformError::fromErrno(PlatformError::tr("Could not read “%1”").arg(shownName()),
                                       errno);
    close();
    return reading;
}

QString OutputFile::shownName() const
{
    return QFile::decodeName(m_name);
}
