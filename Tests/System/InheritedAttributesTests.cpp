// SPDX-License-Identifier: MIT
#include "System/InheritedAttributes.h"

#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void limit(decltype(RLIMIT_NOFILE) resource, rlim_t soft, rlim_t hard)
{
    const struct rlimit both = {.rlim_cur = soft, .rlim_max = hard};
    ::setrlimit(resource, &both);
}

TEST(InheritedAttributes, leaveNoStandardDescriptorClosed)
{
    const auto status = inAnotherProcess([] {
        ::close(STDIN_FILENO);
        ::close(STDERR_FILENO);
        if (!InheritedAttributes::replace())
            return 1;
        return ::write(STDERR_FILENO, "x", 1) == 1 && ::open("/dev/null", O_RDONLY) > 2 ? 0 : 2;
    });
    EXPECT_EQ(status, 0);
}

TEST(InheritedAttributes, allowMoreOpenFilesWhereTheHardLimitDoes)
{
    const auto status = inAnotherProcess([] {
        limit(RLIMIT_NOFILE, 20, 100);
        if (!InheritedAttributes::replace())
            return 1;
        struct rlimit present = {};
        ::getrlimit(RLIMIT_NOFILE, &present);
        return static_cast<int>(present.rlim_cur);
    });
    EXPECT_EQ(status, 100);
}

TEST(InheritedAttributes, doNotSufficeWithTooFewOpenFiles)
{
    for (const auto& [allowed, suffices] : {std::pair{63, 0}, std::pair{64, 1}}) {
        const auto status = inAnotherProcess([allowed = allowed] {
            limit(RLIMIT_NOFILE, 20, static_cast<rlim_t>(allowed));
            return InheritedAttributes::replace() ? 1 : 0;
        });
        EXPECT_EQ(status, suffices) << allowed;
    }
}

TEST(InheritedAttributes, haveAFileThatGrowsTooLargeFailInsteadOfEndingTheProgram)
{
    const TestFolder folder;
    const auto path = QFile::encodeName(folder.write(u"file"_s, "full"));
    const auto status = inAnotherProcess([&path] {
        limit(RLIMIT_FSIZE, 4, 4);
        if (!InheritedAttributes::replace())
            return 1;
        const auto file = ::open(path.constData(), O_WRONLY | O_APPEND);
        return ::write(file, "x", 1) == -1 && errno == EFBIG ? 0 : 2;
    });
    EXPECT_EQ(status, 0);
}

TEST(InheritedAttributes, loseNoExitStatusOfAChild)
{
    const auto status = inAnotherProcess([] {
        ::signal(SIGCHLD, SIG_IGN);
        return InheritedAttributes::replace() ? inAnotherProcess([] { return 7; }) : 1;
    });
    EXPECT_EQ(status, 7);
}

TEST(InheritedAttributes, letThroughTheSignalsThatEndAProgram)
{
    for (const auto number : {SIGTERM, SIGINT, SIGHUP}) {
        const auto status = inAnotherProcess([number] {
            ::signal(number, SIG_DFL);
            sigset_t all;
            sigfillset(&all);
            ::sigprocmask(SIG_BLOCK, &all, nullptr);
            return InheritedAttributes::replace() ? ::raise(number) : 1;
        });
        EXPECT_EQ(status, -number);
    }
}

} // namespace
