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
/// It works on open folders rather than on paths, so that nothing leads it outside: a link is
/// removed and never followed, also one that takes a folder's place meanwhile, and what is mounted
/// at the folder or below is left alone. Few folders are open at a time, however deep the tree is.
/// A folder of the user's that is locked against changes is unlocked.
class TreeRemoval final
{
public:
    /// What could not be removed, and why.
    struct Failure
    {
        QString path;
        QString reason;
    };

    /// Removes the file, link or folder at `path`; nothing there is success. Goes on with the rest
    /// when something cannot be removed, and returns the first such thing. When `stop` is requested
    /// the rest stays. Blocks.
    static std::optional<Failure> remove(const QString& path, const std::stop_token& stop = {});

private:
    /// A folder that is being removed, as the one that holds it knows it.
    struct Folder
    {
        std::string name;
        dev_t device;
        ino_t inode;
        std::vector<std::string> subfolders;
        bool isEmptied = true;
    };

    TreeRemoval(QString path, const std::stop_token& stop);

    void run(const std::string& name);
    [[nodiscard]] bool isMount(int folder, const char* name) const;
    bool removeFile(int parent, const std::string& name);
    void enter(int parent, const std::string& name);
    void leave();
    bool leaveFor(const Folder& expected);
    void removeEntries(Folder& folder);
    void report(const std::string& name, int errorNumber);
    void report(const std::string& name, const QString& reason);

    const QString m_parentPath;
    const std::stop_token& m_stop;
    /// The folders from the one to be removed down to the current one.
    std::vector<Folder> m_folders;
    FileDescriptor m_parent;
    /// The last of them; the parent, once the first one has been left.
    FileDescriptor m_current;
    /// The mount that what is to be removed lies on.
    std::optional<quint64> m_mount;
    std::optional<Failure> m_failure;
};
