// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Whether the process `id` runs. A zombie does not.
bool processRuns(qint64 id);
