// SPDX-License-Identifier: MIT
#pragma once

/// From now on a warning of Qt's that no test expects (QTest::ignoreMessage) fails the test: it is
/// a defect of ours.
void failTestsOnWarnings();
