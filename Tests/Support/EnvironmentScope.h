// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// Sets or unsets an environment variable for the life of the object.
class EnvironmentScope final
{
public:
    /// Nothing as the value unsets the variable.
    EnvironmentScope(const char* name, const std::optional<QByteArray>& value);
    ~EnvironmentScope();

    EnvironmentScope(const EnvironmentScope&) = delete;
    EnvironmentScope& operator=(const EnvironmentScope&) = delete;

private:
    const char* m_name;
    std::optional<QByteArray> m_before;
};
