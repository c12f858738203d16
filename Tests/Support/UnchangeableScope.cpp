// SPDX-License-Identifier: MIT
#include "Support/UnchangeableScope.h"

#include <gtest/gtest.h>

#include <QFile>

#include <fcntl.h>
#if defined(Q_OS_LINUX)
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

UnchangeableScope::UnchangeableScope(const QString& path)
    : m_file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
    , m_isInForce(set(true))
{
}

UnchangeableScope::~UnchangeableScope()
{
    EXPECT_TRUE(!m_isInForce || set(false));
}

bool UnchangeableScope::set([[maybe_unused]] bool isUnchangeable)
{
#if defined(Q_OS_LINUX)
    int flags = 0;
    if (::ioctl(m_file.get(), FS_IOC_GETFLAGS, &flags) != 0)
        return false;
    flags = isUnchangeable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    return ::ioctl(m_file.get(), FS_IOC_SETFLAGS, &flags) == 0;
#else
    return false;
#endif
}
