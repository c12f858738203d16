// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Whether the process `id` runs: one that has ended and that nobody has collected does not.
bool processRuns(qint64 id);
