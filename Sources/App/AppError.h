// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stdexcept>

/// A failure in words for the player: one whole sentence, shown as it stands.
///
/// It describes what went wrong in the launcher's own terms. What the operating system or the
/// network reports is a PlatformError; a cancellation by the player is Cancelled.
class AppError final : public std::runtime_error
{
public:
    explicit AppError(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }

    /// The sentence, as given.
    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};
