// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>

#if defined(__APPLE__)
#include <xlocale.h>
#else
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale() is only here
#endif

/// Has the C library spell names as UTF-8 on this thread for the life of the object, whatever the
/// user's locale. A desktop without a locale would otherwise refuse names that are not ASCII.
class Utf8Names final
{
public:
    /// Throws PlatformError when the system has no such character set.
    Utf8Names();
    ~Utf8Names();

    Utf8Names(const Utf8Names&) = delete;
    Utf8Names& operator=(const Utf8Names&) = delete;

private:
    locale_t m_utf8;
    locale_t m_before;
};
