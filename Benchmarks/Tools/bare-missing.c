/* SPDX-License-Identifier: MIT
 *
 * bare-missing FOLDER: what the count of the assets still to import costs at the least. It makes
 * the system calls that the count cannot do without, in the plainest way and with no memory of its
 * own to manage: each folder is opened and listed, each companion opened, asked for its size, read
 * at once and closed, each converted file asked for. The yardstick for ImportChecker::missingCount,
 * not a second one.
 */
#define _GNU_SOURCE
#include <ctype.h>
#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

enum { MOST = 1 << 16 };

static int project;

static int is_importable(const char* name)
{
    static const char* const extensions[] = {"png",  "jpg", "jpeg", "svg", "webp", "bmp",
                                             "tga",  "ogg", "wav",  "mp3", "obj",  "glb",
                                             "gltf", "dds", "hdr",  "exr"};
    const char* dot = strrchr(name, '.');
    if (!dot)
        return 0;
    for (size_t i = 0; i < sizeof extensions / sizeof *extensions; ++i)
        if (strcasecmp(dot + 1, extensions[i]) == 0)
            return 1;
    return 0;
}

/* Whether a companion's text names converted files of which none exists. */
static int lacks_its_files(char* text)
{
    int named = 0;
    char* rest = text;
    for (char* line; (line = strsep(&rest, "\n"));) {
        while (*line == ' ' || *line == '\t')
            ++line;
        if (strncmp(line, "path", 4) != 0 || !(line = strchr(line, '=')))
            continue;
        line += 1 + strspn(line + 1, " \"");
        if (strncmp(line, "res://", 6) != 0)
            continue;
        line += 6;
        size_t length = strlen(line);
        while (length > 0 && strchr(" \t\"", line[length - 1]))
            line[--length] = 0;
        named = 1;
        if (faccessat(project, line, F_OK, 0) == 0)
            return 0;
    }
    return named;
}

static int is_missing(int folder, const char* name)
{
    char companion[NAME_MAX + 8];
    static char text[MOST];
    snprintf(companion, sizeof companion, "%s.import", name);
    int file = openat(folder, companion, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return 1;
    struct stat status;
    ssize_t length = -1;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size < MOST)
        length = read(file, text, (size_t)status.st_size);
    close(file);
    if (length < 0)
        return 1;
    text[length] = 0;
    return lacks_its_files(text);
}

static long long missing_below(int folder)
{
    long long count = 0;
    DIR* list = fdopendir(folder);
    if (!list)
        return 0;
    for (struct dirent* entry; (entry = readdir(list));) {
        if (entry->d_name[0] == '.')
            continue;
        if (is_importable(entry->d_name))
            count += is_missing(folder, entry->d_name);
        if (entry->d_type == DT_DIR) {
            int below = openat(folder, entry->d_name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            if (below >= 0)
                count += missing_below(below);
        }
    }
    closedir(list);
    return count;
}

static double seconds(clockid_t clock)
{
    struct timespec time;
    clock_gettime(clock, &time);
    return (double)time.tv_sec + (double)time.tv_nsec / 1e9;
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: bare-missing FOLDER\n");
        return 2;
    }
    const double wall = seconds(CLOCK_MONOTONIC);
    const double processor = seconds(CLOCK_PROCESS_CPUTIME_ID);
    project = open(argv[1], O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (project < 0) {
        perror(argv[1]);
        return 1;
    }
    const long long count = missing_below(dup(project));
    printf("{\"wall\": %.6f, \"processor\": %.6f, \"result\": %lld}\n",
           seconds(CLOCK_MONOTONIC) - wall, seconds(CLOCK_PROCESS_CPUTIME_ID) - processor, count);
    return 0;
}
