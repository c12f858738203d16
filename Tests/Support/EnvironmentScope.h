// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// Sets or unsets an environment variable. The destructor restores it.
class EnvironmentScope final
{
public:
    /// Unsets the variable if there is no `value`.
    EnvironmentScope(const char* name, const std::optional<QByteArray>& value);
    ~EnvironmentScope();

    EnvironmentScope(const EnvironmentScope&) = delete;
    EnvironmentScope& operator=(const EnvironmentScope&) = delete;

private:
    const char* m_name;
    std::optional<QByteArray> m_before;
};
