// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <concepts>
#include <functional>
#include <utility>

/// Takes one line of text for the log. It may be called from any thread.
///
/// Any function of one string will do. A log that shows few of the lines it is given can take a
/// child's output in blocks instead, and decode only those few (LogStore::callback()).
class LogCallback final
{
public:
    using TakeLine = std::function<void(const QString& line)>;
    using TakeBlock = std::function<void(const QByteArray& lines)>;

    LogCallback() = default;

    // A callback is what a function stands for, and its constraint leaves copies alone.
    // NOLINTBEGIN(google-explicit-constructor,bugprone-forwarding-reference-overload)
    template<typename Function>
    requires(!std::same_as<std::remove_cvref_t<Function>, LogCallback> &&
             std::invocable<Function&, const QString&>) LogCallback(Function&& takeLine)
        : m_takeLine(std::forward<Function>(takeLine))
    {
    }
    // NOLINTEND(google-explicit-constructor,bugprone-forwarding-reference-overload)

    /// `takeBlock` gets whole lines as the child wrote them, each ended by a line feed; it must
    /// have the effect of `takeLine` called with each of them.
    LogCallback(TakeLine takeLine, TakeBlock takeBlock)
        : m_takeLine(std::move(takeLine))
        , m_takeBlock(std::move(takeBlock))
    {
    }

    void operator()(const QString& line) const { m_takeLine(line); }

    /// Whether a child's output may be handed over in blocks.
    [[nodiscard]] bool takesBlocks() const { return static_cast<bool>(m_takeBlock); }
    void takeBlock(const QByteArray& lines) const { m_takeBlock(lines); }

private:
    TakeLine m_takeLine;
    TakeBlock m_takeBlock;
};
