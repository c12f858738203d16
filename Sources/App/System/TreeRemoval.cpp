// SPDX-License-Identifier: MIT
#include "System/TreeRemoval.h"

#include "System/Errors.h"
#include "System/FolderListing.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString mountedThere()
{
    return PlatformError::tr("another file system is mounted there");
}

/// Opens a folder without read permission.
#if defined(O_PATH)
constexpr auto searchOnly = O_PATH;
#else
constexpr auto searchOnly = O_SEARCH;
#endif

/// Returns the mount id of `name` in `folder`, or of `folder` for an empty name; the device number
/// on systems without mount ids. Returns nothing if `name` does not exist.
std::optional<quint64> mountOf(int folder, const char* name)
{
#if defined(STATX_MNT_ID)
    struct statx extended = {};
    constexpr auto flags = AT_EMPTY_PATH | AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    if (::statx(folder, name, flags, STATX_MNT_ID, &extended) == 0 &&
        (extended.stx_mask & STATX_MNT_ID) != 0)
        return extended.stx_mnt_id;
#endif
    struct stat status = {};
    const auto result = *name == '\0' ? ::fstat(folder, &status)
                                      : ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW);
    return result == 0 ? std::optional(quint64{status.st_dev}) : std::nullopt;
}

/// Opens a folder. Changes its mode first if it is not readable.
FileDescriptor openFolder(int parent, const char* name)
{
    constexpr auto flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    auto folder = FileDescriptor(::openat(parent, name, flags));
    if (folder.isOpen() || errno != EACCES)
        return folder;
    if (::fchmodat(parent, name, S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0)
        return FileDescriptor(::openat(parent, name, flags));
    errno = EACCES;
    return {};
}

std::vector<std::string> namesIn(int folder)
{
    const auto listing = openListing(openFolder(folder, "."));
    if (!listing)
        return {}; // Removing the folder then fails and is reported.
    // Some file systems skip entries if others are removed during readdir().
    std::vector<std::string> names;
    while (const auto* entry = ::readdir(listing.get())) {
        const std::string_view name(entry->d_name);
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    return names;
}

/// Adds the write and search permissions without which no entry can be removed. Returns false and
/// sets errno on failure.
bool makeWritable(int folder, const struct stat& status)
{
    if (::faccessat(folder, ".", W_OK | X_OK, 0) == 0)
        return true;
    const auto error = errno;
    if (error == EACCES && ::fchmod(folder, status.st_mode | S_IRWXU) == 0)
        return true;
    errno = error;
    return false;
}

} // namespace

std::optional<TreeRemoval::Failure> TreeRemoval::remove(const QString& path,
                                                        const std::stop_token& stop)
{
    TreeRemoval removal(QFileInfo(path).path(), stop);
    removal.run(QFile::encodeName(QFileInfo(path).fileName()).toStdString());
    return removal.m_failure;
}

TreeRemoval::TreeRemoval(QString parentPath, const std::stop_token& stop)
    : m_parentPath(std::move(parentPath))
    , m_stop(stop)
{
}

void TreeRemoval::run(const std::string& name)
{
    m_parent = FileDescriptor(
        ::open(QFile::encodeName(m_parentPath).constData(), searchOnly | O_DIRECTORY | O_CLOEXEC));
    if (!m_parent.isOpen()) {
        if (errno != ENOTDIR)
            report(name, errno);
        return;
    }
    m_parentMount = mountOf(m_parent.get(), "");
    if (!removeFile(m_parent.get(), name))
        enter(m_parent.get(), name);
    while (!m_folders.empty() && !m_stop.stop_requested()) {
        auto& pending = m_folders.back().subfolders;
        if (pending.empty()) {
            leave();
            continue;
        }
        const auto next = std::move(pending.back());
        pending.pop_back();
        enter(m_current.get(), next);
    }
}

/// Returns true if `name` in `folder` lies on another mount than the parent of the whole tree.
bool TreeRemoval::isMount(int folder, const char* name) const
{
    const auto mount = mountOf(folder, name);
    return mount && mount != m_parentMount;
}

/// Removes anything but a folder; returns false for a folder.
bool TreeRemoval::removeFile(int parent, const std::string& name)
{
    if (::unlinkat(parent, name.c_str(), 0) == 0)
        return true;
    const auto error = errno;
    if (isFolder(parent, name))
        return false;
    if (error == EBUSY && isMount(parent, name.c_str()))
        report(name, mountedThere());
    else
        report(name, error);
    return true;
}

/// Makes the folder `name` in `parent` the current one and removes everything in it but subfolders.
void TreeRemoval::enter(int parent, const std::string& name)
{
    // Checked before openFolder(), which may change its mode, and after, in case it was replaced.
    if (isMount(parent, name.c_str())) {
        report(name, mountedThere());
        return;
    }
    auto opened = openFolder(parent, name.c_str());
    if (opened.isOpen() && isMount(opened.get(), "")) {
        report(name, mountedThere());
        return;
    }
    struct stat status = {};
    if (!opened.isOpen() || ::fstat(opened.get(), &status) != 0 ||
        !makeWritable(opened.get(), status)) {
        const auto error = errno;
        // An empty folder can be removed although another user owns it.
        if (::unlinkat(parent, name.c_str(), AT_REMOVEDIR) != 0)
            report(name, error);
        return;
    }
    m_current = std::move(opened);
    m_folders.push_back({name, status.st_dev, status.st_ino, {}});
    removeEntries(m_folders.back());
}

/// Returns to the parent of the current folder and removes the folder.
void TreeRemoval::leave()
{
    const auto folder = std::move(m_folders.back());
    m_folders.pop_back();
    if (m_folders.empty()) {
        m_current = std::move(m_parent);
    } else if (!openParent(m_folders.back())) {
        report(folder.name, PlatformError::tr("it was moved meanwhile"));
        m_folders.clear();
        return;
    }
    if (folder.isEmptied && ::unlinkat(m_current.get(), folder.name.c_str(), AT_REMOVEDIR) != 0)
        report(folder.name, errno);
    else if (!folder.isEmptied && !m_folders.empty())
        m_folders.back().isEmptied = false;
}

/// Makes the parent of the current folder the current one, if it is `expected`.
bool TreeRemoval::openParent(const Folder& expected)
{
    FileDescriptor parent(::openat(m_current.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status = {};
    if (!parent.isOpen() || ::fstat(parent.get(), &status) != 0 ||
        status.st_dev != expected.device || status.st_ino != expected.inode)
        return false;
    m_current = std::move(parent);
    return true;
}

void TreeRemoval::removeEntries(Folder& folder)
{
    for (auto& name : namesIn(m_current.get())) {
        if (m_stop.stop_requested())
            return;
        if (!removeFile(m_current.get(), name))
            folder.subfolders.push_back(std::move(name));
    }
}

void TreeRemoval::report(const std::string& name, int errorNumber)
{
    if (errorNumber == ENOENT)
        return; // Another process has removed it.
    report(name, QString::fromStdString(std::generic_category().message(errorNumber)));
}

void TreeRemoval::report(const std::string& name, const QString& reason)
{
    if (!m_folders.empty())
        m_folders.back().isEmptied = false;
    if (m_failure)
        return;
    auto path = m_parentPath;
    for (const auto& folder : m_folders)
        path += u'/' + QFile::decodeName(folder.name.c_str());
    m_failure = {.path = path + u'/' + QFile::decodeName(name.c_str()), .reason = reason};
}
