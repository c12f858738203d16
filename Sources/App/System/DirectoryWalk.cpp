// SPDX-License-Identifier: MIT
#include "System/DirectoryWalk.h"

#include "System/FileDescriptor.h"
#include "System/FolderListing.h"

#include <condition_variable>
#include <iterator>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using DirectoryWalk::Kind;

Kind kindByStatus(int folder, const char* name)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return Kind::other;
    return S_ISREG(status.st_mode)   ? Kind::regularFile
           : S_ISDIR(status.st_mode) ? Kind::folder
                                     : Kind::other;
}

Kind kindOf(int folder, const dirent& entry)
{
    switch (entry.d_type) {
    case DT_REG:
        return Kind::regularFile;
    case DT_DIR:
        return Kind::folder;
    case DT_UNKNOWN: // Some file systems do not report the type.
        return kindByStatus(folder, entry.d_name);
    default:
        return Kind::other;
    }
}

bool isSkipped(std::string_view name, DirectoryWalk::Hidden hidden)
{
    if (!name.starts_with('.'))
        return false;
    return hidden == DirectoryWalk::Hidden::skip || name == "." || name == "..";
}

/// Opens the folder at `path`, relative to `root`.
FileDescriptor openFolder(int root, std::string_view path)
{
    constexpr auto flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    // One call takes at most PATH_MAX (4096) bytes. A name has at most 255.
    constexpr std::size_t maxStepLength = 4000;
    FileDescriptor reached;
    while (path.size() > maxStepLength) {
        const auto end = path.rfind('/', maxStepLength);
        reached = FileDescriptor(::openat(reached.isOpen() ? reached.get() : root,
                                          std::string(path.substr(0, end)).c_str(), flags));
        if (!reached.isOpen())
            return {};
        path.remove_prefix(end + 1);
    }
    return FileDescriptor(
        ::openat(reached.isOpen() ? reached.get() : root, std::string(path).c_str(), flags));
}

/// One walk; work() may run on several threads.
class Walk final
{
public:
    Walk(FileDescriptor root, DirectoryWalk::Hidden hidden, std::stop_token stop)
        : m_root(std::move(root))
        , m_hidden(hidden)
        , m_stop(std::move(stop))
    {
    }

    /// Reads folders until no thread has any left.
    void work(const DirectoryWalk::Visit& visit)
    {
        while (const auto folder = takeFolder())
            addFolders(read(*folder, visit));
    }

private:
    /// Blocks while another thread may still add folders. Returns nothing at the end of the walk.
    std::optional<std::string> takeFolder()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_pending.empty() || m_readers == 0; });
        if (m_pending.empty() || m_stop.stop_requested())
            return std::nullopt;
        auto folder = std::move(m_pending.back());
        m_pending.pop_back();
        ++m_readers;
        return folder;
    }

    /// Adds the subfolders of a folder that takeFolder() returned.
    void addFolders(std::vector<std::string>&& found)
    {
        const std::lock_guard lock(m_mutex);
        m_pending.insert(m_pending.end(), std::move_iterator(found.begin()),
                         std::move_iterator(found.end()));
        --m_readers;
        m_changed.notify_all();
    }

    /// Visits the entries of a folder and returns its subfolders.
    std::vector<std::string> read(const std::string& folder, const DirectoryWalk::Visit& visit)
    {
        std::vector<std::string> found;
        const auto listing = openListing(openFolder(m_root.get(), folder));
        if (!listing)
            return found;
        const auto descriptor = ::dirfd(listing.get());
        while (const auto* entry = ::readdir(listing.get())) {
            const std::string_view name(entry->d_name);
            if (isSkipped(name, m_hidden))
                continue;
            if (m_stop.stop_requested())
                break;
            const auto kind = kindOf(descriptor, *entry);
            visit({descriptor, name, kind});
            if (kind == Kind::folder)
                found.push_back(folder + '/' + entry->d_name);
        }
        return found;
    }

    const FileDescriptor m_root;
    const DirectoryWalk::Hidden m_hidden;
    const std::stop_token m_stop;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// The folders still to be read, as paths relative to the root.
    std::vector<std::string> m_pending{"."};
    int m_readers = 0;
};

} // namespace

bool DirectoryWalk::walk(const QString& path, Hidden hidden, const std::stop_token& stop,
                         const Visit& visit)
{
    return walkInParallel(path, hidden, stop, std::span(&visit, 1));
}

bool DirectoryWalk::walkInParallel(const QString& path, Hidden hidden, const std::stop_token& stop,
                                   std::span<const Visit> visitors)
{
    auto root = openFolder(path);
    if (!root.isOpen())
        return false;
    Walk walk(std::move(root), hidden, stop);
    std::vector<std::jthread> helpers;
    try {
        for (const auto& visit : visitors.subspan(1))
            helpers.emplace_back([&walk, &visit] { walk.work(visit); });
    } catch (const std::system_error&) {
        // This thread walks alone.
    }
    walk.work(visitors.front());
    return true;
}
