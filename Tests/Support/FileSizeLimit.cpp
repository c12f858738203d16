// SPDX-License-Identifier: MIT
#include "Support/FileSizeLimit.h"

#include <gtest/gtest.h>

FileSizeLimit::FileSizeLimit(rlim_t bytes)
    : m_handlerBefore(::signal(SIGXFSZ, SIG_IGN))
{
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_before), 0);
    const rlimit limited{bytes, m_before.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
}

FileSizeLimit::~FileSizeLimit()
{
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &m_before), 0);
    ::signal(SIGXFSZ, m_handlerBefore);
}
