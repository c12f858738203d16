// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

class InputFile;

/// Returns the SHA-512 digest of the file in lower-case hexadecimal digits. Throws PlatformError,
/// or Cancelled when `stop` is requested. Blocks.
QString sha512(const InputFile& file, const std::stop_token& stop);
