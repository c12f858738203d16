// SPDX-License-Identifier: MIT
#pragma once

/// Has assistive technology press push buttons at once. Qt animates such a press and acts 100 ms
/// later, when the button may be gone. May be called more than once.
void installAccessibleButtons();
