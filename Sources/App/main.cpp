// SPDX-License-Identifier: MIT
#include "CavernyxPlatformerApp.h"

int main(int, char** arguments)
{
    return CavernyxPlatformerApp(arguments[0]).run();
}
