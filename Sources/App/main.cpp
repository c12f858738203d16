// SPDX-License-Identifier: MIT
#include "Shell/CavernyxPlatformerApp.h"

int main(int, char** arguments)
{
    return CavernyxPlatformerApp(arguments[0]).run();
}
