// SPDX-License-Identifier: MIT
#include "Project/GameFacts.h"
#include "Shell/CavernyxPlatformerApp.h"
#include "System/InheritedAttributes.h"

#include <cstdio>
#include <cstdlib>

namespace {

/// Ends the process before static objects are destroyed, since other threads may still use those of
/// the libraries: a look-up that was abandoned, or everything if Qt calls exit() because the
/// display is lost. The objects of the main thread are destroyed first.
class ExitGuard final
{
public:
    ExitGuard() = default;
    ~ExitGuard() { std::_Exit(status); }
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;

    int status = EXIT_FAILURE;
};

} // namespace

int main(int, char** arguments)
{
    if (!InheritedAttributes::replace()) {
        std::fprintf(
            stderr, "%s needs to open %d files at a time, and the limit (ulimit -n) is lower.\n",
            qPrintable(GameFacts::launcherName.toString()), InheritedAttributes::minOpenFiles);
        return EXIT_FAILURE;
    }
    thread_local ExitGuard guard;
    guard.status = CavernyxPlatformerApp(arguments[0]).run();
    return guard.status;
}
