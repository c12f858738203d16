// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>

/// Whether an error number says that the system or the file system knows no such request, and not
/// that the request failed.
[[nodiscard]] constexpr bool isUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == ENOTSUP;
}
