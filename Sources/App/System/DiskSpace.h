// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

#include <sys/types.h>

class QString;

/// Returns the bytes available to ordinary users on the file system of the open file or folder;
/// nothing if the file system does not report them. A later write may still fail with ENOSPC.
std::optional<qint64> freeSpace(int descriptor);

/// Returns the device of the file system at `path`, or at the nearest existing folder above it.
/// Follows symbolic links.
dev_t deviceOf(QString path);
