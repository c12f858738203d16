// SPDX-License-Identifier: MIT
#pragma once

/// Runs the selected tests and returns the program's exit status. Needs an application object.
///
/// A Qt warning fails the current test, unless the test expects it (QTest::ignoreMessage). The
/// downloads go to a local address without a server.
[[nodiscard]] int runTests();

/// In a build with LeakSanitizer, the destructor looks for leaks. A main function declares it
/// before the application object: that must be gone by then, but not the static objects, since Qt
/// ends a thread with them, whose data sometimes counts as leaked.
class LeakCheck final
{
public:
    LeakCheck() = default;
    ~LeakCheck();

    LeakCheck(const LeakCheck&) = delete;
    LeakCheck& operator=(const LeakCheck&) = delete;
};
