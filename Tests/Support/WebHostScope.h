// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Makes webHost() return another scheme and host until the destructor. The default for tests is a
/// port on which no server listens.
class WebHostScope final
{
public:
    /// `host` is e.g. "http://127.0.0.1:8080".
    explicit WebHostScope(const QString& host);
    ~WebHostScope();

    WebHostScope(const WebHostScope&) = delete;
    WebHostScope& operator=(const WebHostScope&) = delete;

private:
    QString m_before;
};
