/* SPDX-License-Identifier: MIT
 *
 * Stands in for the engine where only the moment of its start matters: appends that moment, in
 * nanoseconds of the monotonic clock, and its process to the file that CAVERNYX_STAMPS names, and
 * then waits to be ended, as a game would.
 */
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <unistd.h>

int main(void)
{
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    const char* path = getenv("CAVERNYX_STAMPS");
    FILE* stamps = path ? fopen(path, "a") : NULL;
    if (!stamps)
        return 1;
    fprintf(stamps, "%lld %d\n", (long long)now.tv_sec * 1000000000LL + now.tv_nsec, (int)getpid());
    fclose(stamps);
    for (;;)
        pause();
}
