// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

#include <sys/types.h>

class QString;

/// The bytes that an ordinary user may still write to the file system of the open file or folder;
/// nothing if the file system does not say. A write may still fail for want of space.
std::optional<qint64> freeSpace(int descriptor);

/// The device of the file system that `path`, or the nearest folder above it that exists, lies on.
/// Follows symbolic links.
dev_t deviceOf(QString path);
