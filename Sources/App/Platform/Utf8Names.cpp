// SPDX-License-Identifier: MIT
#include "Platform/Utf8Names.h"

#include "Platform/PlatformError.h"

#include <cerrno>

namespace {

locale_t openUtf8()
{
    // The first is built into glibc, the second is the name on macOS.
    for (const auto* name : {"C.UTF-8", "UTF-8"}) {
        if (const auto locale = ::newlocale(LC_CTYPE_MASK, name, nullptr))
            return locale;
    }
    throw PlatformError::fromErrno(PlatformError::tr("use UTF-8 for file names"), errno);
}

} // namespace

Utf8Names::Utf8Names()
    : m_utf8(openUtf8())
    , m_before(::uselocale(m_utf8))
{
}

Utf8Names::~Utf8Names()
{
    ::uselocale(m_before);
    ::freelocale(m_utf8);
}
