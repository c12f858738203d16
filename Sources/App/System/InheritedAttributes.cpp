// SPDX-License-Identifier: MIT
#include "System/InheritedAttributes.h"

#include <algorithm>
#include <csignal>
#include <optional>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// The launcher needs no more, and some programs loop over all possible descriptors.
constexpr rlim_t maxOpenFiles = 4096;

std::optional<struct rlimit> inheritedOpenFiles;
std::optional<struct sigaction> inheritedFileSizeAction;

void openStandardDescriptors()
{
    int descriptor = 0;
    do {
        descriptor = ::open("/dev/null", O_RDWR); // NOLINT: children inherit it
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor >= 0)
        ::close(descriptor);
}

bool raiseOpenFiles()
{
    struct rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return true;
    const auto wanted = std::min(limit.rlim_max, maxOpenFiles);
    if (limit.rlim_cur < wanted) {
        const struct rlimit raised = {.rlim_cur = wanted, .rlim_max = limit.rlim_max};
        if (::setrlimit(RLIMIT_NOFILE, &raised) == 0) {
            inheritedOpenFiles = limit;
            limit = raised;
        }
    }
    return limit.rlim_cur >= InheritedAttributes::minOpenFiles;
}

void replaceSignals()
{
    struct sigaction inherited = {};
    ::sigaction(SIGXFSZ, nullptr, &inherited);
    inheritedFileSizeAction = inherited;
    ::signal(SIGXFSZ, SIG_IGN);
    ::signal(SIGCHLD, SIG_DFL);

    sigset_t ending;
    sigemptyset(&ending);
    for (const auto number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&ending, number);
    ::sigprocmask(SIG_UNBLOCK, &ending, nullptr);
}

} // namespace

bool InheritedAttributes::replace()
{
    replaceSignals();
    const auto suffices = raiseOpenFiles();
    openStandardDescriptors();
    return suffices;
}

void InheritedAttributes::restoreInChild() noexcept
{
    if (inheritedOpenFiles)
        ::setrlimit(RLIMIT_NOFILE, &*inheritedOpenFiles);
    if (inheritedFileSizeAction)
        ::sigaction(SIGXFSZ, &*inheritedFileSizeAction, nullptr);
}
