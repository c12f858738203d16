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
    case DT_UNKNOWN: // Some file systems do not say.
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
    // The system takes no longer path in one call. A name has at most 255 bytes.
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

/// One walk, by one thread or several.
class Walk final
{
public:
    Walk(FileDescriptor root, DirectoryWalk::Hidden hidden, std::stop_token stop)
        : m_root(std::move(root))
        , m_hidden(hidden)
        , m_stop(std::move(stop))
    {
    }

    /// Reads folders until all threads together have read all.
    void work(const DirectoryWalk::Visit& visit)
    {
        while (const auto folder = takeFolder())
            addFolders(read(*folder, visit));
    }

private:
    /// Waits while another thread may still find folders. Returns nothing at the end.
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

    /// Ends what takeFolder() began.
    void addFolders(std::vector<std::string>&& found)
    {
        const std::lock_guard lock(m_mutex);
        m_pending.insert(m_pending.end(), std::move_iterator(found.begin()),
                         std::move_iterator(found.end()));
        --m_readers;
        m_changed.notify_all();
    }

    /// Visits the entries of a folder and returns the folders among them.
    std::vector<std::string> read(const std::string& folder, const DirectoryWalk::Visit& visit)
    {
        std::vector<std::string> found;
        const auto listing = listingOf(openFolder(m_root.get(), folder));
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
    /// The folders still to be read, as paths from the root.
    std::vector<std::string> m_pending{"."};
    int m_readers = 0;
};

} // namespace

bool DirectoryWalk::walk(const QString& path, Hidden hidden, const std::stop_token& stop,
                         const Visit& visit)
{
    return walkTogether(path, hidden, stop, std::span(&visit, 1));
}

bool DirectoryWalk::walkTogether(const QString& path, Hidden hidden, const std::stop_token& stop,
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
        // Without another thread it only takes longer.
    }
    walk.work(visitors.front());
    return true;
}
