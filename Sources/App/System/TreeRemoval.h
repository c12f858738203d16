// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include <sys/types.h>

/// Removes one folder with everything in it, and nothing else.
///
/// It works on open directories instead of paths. A link is removed and never followed, even if it
/// replaces a directory meanwhile. What is mounted at the folder or below it stays. The number of
/// open directories does not grow with the depth. A directory without write permission that belongs
/// to the user is made writable first.
class TreeRemoval final
{
public:
    /// What could not be removed, and why.
    struct Failure
    {
        QString path;
        QString reason;
    };

    /// Removes the file, link or folder at `path`. Succeeds if nothing exists there. Continues
    /// after a failure and returns the first one. Returns early when `stop` is requested. Blocks.
    static std::optional<Failure> remove(const QString& path, const std::stop_token& stop = {});

private:
    /// A folder that is being removed.
    struct Folder
    {
        std::string name;
        dev_t device;
        ino_t inode;
        std::vector<std::string> subfolders;
        bool isEmptied = true;
    };

    TreeRemoval(QString parentPath, const std::stop_token& stop);

    void run(const std::string& name);
    [[nodiscard]] bool isMount(int folder, const char* name) const;
    bool removeFile(int parent, const std::string& name);
    void enter(int parent, const std::string& name);
    void leave();
    bool openParent(const Folder& expected);
    void removeEntries(Folder& folder);
    void report(const std::string& name, int errorNumber);
    void report(const std::string& name, const QString& reason);

    const QString m_parentPath;
    const std::stop_token& m_stop;
    /// The chain from the folder to be removed to the current folder.
    std::vector<Folder> m_folders;
    FileDescriptor m_parent;
    /// The descriptor of the last of m_folders.
    FileDescriptor m_current;
    /// The mount of the parent folder. On another one lies what is mounted, which is not removed.
    std::optional<quint64> m_parentMount;
    std::optional<Failure> m_failure;
};
