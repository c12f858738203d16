// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <cerrno>
#include <exception>
#include <stdexcept>
#include <stop_token>

/// A failure in words for the player: one whole sentence, shown as it stands.
///
/// It describes what went wrong in the launcher's own terms, as AppError::tr("…"). What the
/// operating system or the network reports is a PlatformError; a cancellation by the player is
/// Cancelled.
class AppError final : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(AppError)

public:
    explicit AppError(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }

    /// The sentence, as given.
    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};

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

/// Whether the error number means that the system or the file system does not support a request.
[[nodiscard]] constexpr bool isUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == ENOTSUP;
}

/// Thrown by an operation that ended because the player cancelled it. It is not a failure.
class Cancelled final : public std::exception
{
public:
    [[nodiscard]] const char* what() const noexcept override { return "Cancelled."; }
};

/// Throws Cancelled when `stop` has been requested.
inline void throwIfCancelled(const std::stop_token& stop)
{
    if (stop.stop_requested())
        throw Cancelled();
}
