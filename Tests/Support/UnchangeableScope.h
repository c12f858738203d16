// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// Makes a file or folder immutable, for the administrator too, while this lives,
/// also when a folder above is moved. Only the administrator can make one, and not on every system.
class UnchangeableScope final
{
public:
    explicit UnchangeableScope(const QString& path);
    ~UnchangeableScope();

    UnchangeableScope(const UnchangeableScope&) = delete;
    UnchangeableScope& operator=(const UnchangeableScope&) = delete;

    /// Whether the system let it be made so.
    [[nodiscard]] bool isInForce() const { return m_isInForce; }

private:
    bool set(bool isUnchangeable);

    const FileDescriptor m_file;
    const bool m_isInForce;
};
