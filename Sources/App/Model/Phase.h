// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <utility>

/// The launcher's phase, a value.
class Phase final
{
public:
    enum class Kind {
        /// Setup or play failed; see message().
        needs,
        /// The game or the engine is missing, or the first-time setup has not completed.
        notDownloaded,
        /// The game or the engine is being downloaded.
        downloading,
        /// The first-time import is running.
        settingUp,
        /// Everything is installed; Play starts the game at once.
        ready,
        /// The game is running.
        playing,
    };

    static Phase needs(const QString& message) { return {Kind::needs, message}; }
    static Phase notDownloaded() { return {Kind::notDownloaded, {}}; }
    static Phase downloading() { return {Kind::downloading, {}}; }
    static Phase settingUp() { return {Kind::settingUp, {}}; }
    static Phase ready() { return {Kind::ready, {}}; }
    static Phase playing() { return {Kind::playing, {}}; }

    [[nodiscard]] Kind kind() const { return m_kind; }
    /// The failure's sentence in `needs`; else empty.
    [[nodiscard]] const QString& message() const { return m_message; }

    /// Returns true for `downloading`, `settingUp` and `playing`.
    [[nodiscard]] bool isBusy() const { return isSetup() || m_kind == Kind::playing; }
    /// Returns true for `downloading` and `settingUp`.
    [[nodiscard]] bool isSetup() const
    {
        return m_kind == Kind::downloading || m_kind == Kind::settingUp;
    }

    bool operator==(const Phase&) const = default;
    bool operator==(Kind kind) const { return m_kind == kind; }

private:
    Phase(Kind kind, QString message)
        : m_kind(kind)
        , m_message(std::move(message))
    {
    }

    Kind m_kind;
    QString m_message;
};
