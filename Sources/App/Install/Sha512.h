// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// The SHA-512 of the file as 128 lower-case hexadecimal digits. Reads it in pieces, so that memory
/// stays flat; may block; any thread. Throws PlatformError, or Cancelled when `stop` is requested.
QString sha512OfFile(const QString& path, const std::stop_token& stop);
