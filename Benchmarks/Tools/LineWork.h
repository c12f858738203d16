// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The cutting of output into lines, by the launcher's buffer and by the least that has the same
/// result, over the same bytes in the same chunks. Each reports the number of lines.
namespace LineWork {

/// `mebibytes` of output in lines of `lineLength` bytes, the line feed included.
void buffered(qsizetype mebibytes, qsizetype lineLength);
/// The same bytes, found with memchr and decoded to one string a line.
void bare(qsizetype mebibytes, qsizetype lineLength);

} // namespace LineWork
