// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Makes webHost() answer with another scheme and host for the life of the object. Outside of one,
/// tests have a host on which nothing listens.
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
