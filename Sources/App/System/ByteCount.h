// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Returns a byte count in the style of file browsers: decimal units, no decimals for bytes and KB,
/// one for MB, two from GB on, without trailing zeros. Examples: "Zero KB", "1 byte", "512 bytes",
/// "12 KB", "7.3 MB", "1.23 GB". A negative count has a leading minus sign.
QString formattedByteCount(qint64 bytes);
