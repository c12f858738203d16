// SPDX-License-Identifier: MIT
#include "Shell/CavernyxPlatformerApp.h"
#include "System/InheritedAttributes.h"

#include <cstdio>
#include <cstdlib>

int main(int, char** arguments)
{
    if (!InheritedAttributes::replace()) {
        std::fprintf(stderr,
                     "Cavernyx Platformer needs to open %d files at a time, and the limit (ulimit "
                     "-n) is lower.\n",
                     InheritedAttributes::minOpenFiles);
        return EXIT_FAILURE;
    }
    return CavernyxPlatformerApp(arguments[0]).run();
}
