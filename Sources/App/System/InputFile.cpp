// SPDX-License-Identifier: MIT
#include "System/InputFile.h"

#include "System/Errors.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

InputFile::InputFile(const QString& path)
    : InputFile(path,
                FileDescriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC)))
{
    if (!m_descriptor.isOpen())
        throw PlatformError::fromErrno(PlatformError::tr("Could not open “%1”").arg(path), errno);
}

InputFile::InputFile(QString path, FileDescriptor descriptor)
    : m_path(std::move(path))
    , m_descriptor(std::move(descriptor))
{
}

qint64 InputFile::size() const
{
    struct stat status = {};
    if (::fstat(m_descriptor.get(), &status) != 0)
        throw PlatformError::fromErrno(PlatformError::tr("Could not read “%1”").arg(m_path), errno);
    return status.st_size;
}

std::size_t InputFile::readAt(qint64 offset, char* buffer, std::size_t size) const
{
    while (true) {
        const auto count = ::pread(m_descriptor.get(), buffer, size, offset);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno != EINTR)
            throw PlatformError::fromErrno(PlatformError::tr("Could not read “%1”").arg(m_path),
                                           errno);
    }
}
