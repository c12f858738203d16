// SPDX-License-Identifier: MIT
#include "Support/OwnMounts.h"

#include "Support/InAnotherProcess.h"
#include "System/FileDescriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownMounts = "CAVERNYX_TEST_HAS_OWN_MOUNTS";

bool write(const char* path, const std::string& text)
{
    const FileDescriptor file(::open(path, O_WRONLY | O_CLOEXEC));
    return ::write(file.get(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

/// Makes the user root in a new user namespace.
bool becomeAdministrator()
{
    const auto user = "0 " + std::to_string(::geteuid()) + " 1";
    const auto group = "0 " + std::to_string(::getegid()) + " 1";
    return ::unshare(CLONE_NEWUSER) == 0 && write("/proc/self/setgroups", "deny") &&
           write("/proc/self/uid_map", user) && write("/proc/self/gid_map", group);
}

/// Makes all mounts private. In a chroot, the root folder need not be a mount point: setns() leaves
/// the chroot for the call.
bool makeMountsPrivate()
{
    const FileDescriptor root(::open("/", O_PATH | O_CLOEXEC));
    const FileDescriptor mounts(::open("/proc/self/ns/mnt", O_RDONLY | O_CLOEXEC));
    return ::setns(mounts.get(), CLONE_NEWNS) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::fchdir(root.get()) == 0 && ::chroot(".") == 0;
}

} // namespace

bool separateMounts()
{
    return (::geteuid() == 0 || becomeAdministrator()) && ::unshare(CLONE_NEWNS) == 0 &&
           makeMountsPrivate();
}

bool mountOverlay(const QString& folder, const QString& layers)
{
    const QDir parent(layers);
    const auto options = u"lowerdir=%1,upperdir=%2/upper,workdir=%2/work,userxattr"_s;
    if (!parent.mkpath(u"upper"_s) || !parent.mkpath(u"work"_s) ||
        ::mount("overlay", QFile::encodeName(folder).constData(), "overlay", 0,
                QFile::encodeName(options.arg(folder, layers)).constData()) != 0)
        return false;
    // The system makes a folder here that only an administrator could delete.
    return ::chmod(QFile::encodeName(parent.filePath(u"work/work"_s)).constData(), S_IRWXU) == 0;
}

bool hasOwnMounts()
{
    return qEnvironmentVariableIsSet(ownMounts);
}

int runAgainWithOwnMounts()
{
    const auto& test = *testing::UnitTest::GetInstance()->current_test_info();
    const auto filter = u"--gtest_filter=%1.%2"_s.arg(QString::fromUtf8(test.test_suite_name()),
                                                      QString::fromUtf8(test.name()));
    return inAnotherProcess(
        [program = QCoreApplication::applicationFilePath().toUtf8(), argument = filter.toUtf8()] {
            if (!separateMounts())
                return noOwnMounts;
            ::setenv(ownMounts, "yes", 1);
            return ::execl(program.constData(), program.constData(), argument.constData(), nullptr);
        });
}
