// SPDX-License-Identifier: MIT
#pragma once

/// Makes a Qt warning fail the current test, unless the test expects it (QTest::ignoreMessage).
void failTestsOnWarnings();
