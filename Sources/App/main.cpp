// SPDX-License-Identifier: MIT
#include "Project/GameFacts.h"
#include "Shell/CavernyxPlatformerApp.h"
#include "System/InheritedAttributes.h"

#include <cstdio>
#include <cstdlib>

int main(int, char** arguments)
{
    if (!InheritedAttributes::replace()) {
        std::fprintf(
            stderr, "%s needs to open %d files at a time, and the limit (ulimit -n) is lower.\n",
            qPrintable(GameFacts::launcherName.toString()), InheritedAttributes::minOpenFiles);
        return EXIT_FAILURE;
    }
    return CavernyxPlatformerApp(arguments[0]).run();
}
