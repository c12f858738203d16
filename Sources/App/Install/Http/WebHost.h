// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The scheme and host of the site that serves the game and the engine, without a trailing slash.
/// The program and the tests each link their own definition.
QString webHost();
