// SPDX-License-Identifier: MIT
#pragma once

/// Runs the selected tests and returns the program's exit status. Needs an application object.
///
/// A Qt warning fails the current test, unless the test expects it (QTest::ignoreMessage). The
/// downloads go to a local address without a server. LeakSanitizer looks for leaks before static
/// objects are destroyed: Qt then ends a thread, whose data sometimes counts as leaked.
[[nodiscard]] int runTests();
