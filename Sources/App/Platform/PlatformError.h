// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <stdexcept>

/// What the operating system or the network reported, as one plain sentence: what was being done,
/// to which file or host, and the system's reason. What was being done, `action` below, is a
/// translated part of that sentence: PlatformError::tr("open “%1”").
class PlatformError final : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(PlatformError)

public:
    /// `sentence` is shown to the player as it stands.
    explicit PlatformError(const QString& sentence);

    /// "Could not <action>: <the system's text for errorNumber>."
    static PlatformError fromErrno(const QString& action, int errorNumber);

    /// "Could not <action>: <reason>." A full stop that ends `reason` is not doubled.
    static PlatformError fromReason(const QString& action, const QString& reason);

    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};
