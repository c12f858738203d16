// SPDX-License-Identifier: MIT
#include "Support/EnvironmentScope.h"

namespace {

void setOrUnset(const char* name, const std::optional<QByteArray>& value)
{
    if (value)
        qputenv(name, *value);
    else
        qunsetenv(name);
}

} // namespace

EnvironmentScope::EnvironmentScope(const char* name, const std::optional<QByteArray>& value)
    : m_name(name)
{
    if (qEnvironmentVariableIsSet(name))
        m_before = qgetenv(name);
    setOrUnset(name, value);
}

EnvironmentScope::~EnvironmentScope()
{
    setOrUnset(m_name, m_before);
}
