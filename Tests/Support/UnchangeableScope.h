// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// Sets the immutable flag of a file or folder until the destructor, even if a parent folder is
/// moved. It also stops root. Only root can set it, and not on every file system.
class UnchangeableScope final
{
public:
    explicit UnchangeableScope(const QString& path);
    ~UnchangeableScope();

    UnchangeableScope(const UnchangeableScope&) = delete;
    UnchangeableScope& operator=(const UnchangeableScope&) = delete;

    /// Returns true if the flag could be set.
    [[nodiscard]] bool isInForce() const { return m_isInForce; }

private:
    bool set(bool isUnchangeable);

    const FileDescriptor m_file;
    const bool m_isInForce;
};
