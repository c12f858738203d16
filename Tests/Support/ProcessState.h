// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Returns true if the process `id` exists and is not a zombie.
bool processRuns(qint64 id);
