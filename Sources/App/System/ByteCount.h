// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A byte count in the style in which desktop file browsers write file sizes: decimal units, no
/// digits after the point for bytes and KB, one for MB, two from GB on, trailing zeros dropped;
/// "Zero KB", "1 byte", "512 bytes", "12 KB", "7.3 MB", "1.23 GB". A negative count is written with
/// a leading minus sign.
QString formattedByteCount(qint64 bytes);
