// SPDX-License-Identifier: MIT
#include "Support/WebHostScope.h"

#include "Install/Http/WebHost.h"

#include <utility>

namespace {

QString currentHost;

} // namespace

QString webHost()
{
    return currentHost;
}

WebHostScope::WebHostScope(const QString& host)
    : m_before(std::exchange(currentHost, host))
{
}

WebHostScope::~WebHostScope()
{
    currentHost = m_before;
}
