// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <cerrno>
#include <exception>
#include <stdexcept>
#include <stop_token>

/// An error with one whole sentence for the player, AppError::tr("…"), shown unchanged. Errors that
/// the operating system or the network reports are a PlatformError.
class AppError final : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(AppError)

public:
    explicit AppError(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }

    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};

/// An error that the operating system or the network reported, with one whole sentence for the
/// player: the action, the file or host, and the system's reason. `failure` below is the translated
/// part before the reason, e.g. PlatformError::tr("Could not open “%1”").
class PlatformError final : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(PlatformError)

public:
    explicit PlatformError(const QString& sentence);

    /// "<failure>: <the system's text for errorNumber>."
    static PlatformError fromErrno(const QString& failure, int errorNumber);

    /// "<failure>: <reason>." Adds the full stop only if `reason` has none.
    static PlatformError fromReason(const QString& failure, const QString& reason);

    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};

/// Returns true if the error number means that the file system or kernel does not support a call.
[[nodiscard]] constexpr bool isUnsupported(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == ENOTSUP;
}

/// Thrown when the player cancels an operation. Not shown as a failure.
class Cancelled final : public std::exception
{
public:
    [[nodiscard]] const char* what() const noexcept override { return "Cancelled."; }
};

/// Throws Cancelled if `stop` has been requested.
inline void throwIfCancelled(const std::stop_token& stop)
{
    if (stop.stop_requested())
        throw Cancelled();
}
