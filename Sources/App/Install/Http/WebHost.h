// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Returns the scheme and host of the server of the game and the engine, without a trailing slash.
/// The program and the tests each link their own definition.
QString webHost();
