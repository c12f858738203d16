// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"

#include <QStringList>

#include <memory>
#include <mutex>

/// Collects the log lines passed to its callback. Thread-safe.
class CollectedLines final
{
public:
    /// The callback. It may outlive this object.
    [[nodiscard]] LogCallback callback() const
    {
        return [content = m_content](const QString& text) {
            const std::lock_guard guard(content->lock);
            content->lines += text.split(u'\n');
        };
    }

    [[nodiscard]] QStringList lines() const
    {
        const std::lock_guard guard(m_content->lock);
        return m_content->lines;
    }

private:
    struct Content
    {
        std::mutex lock;
        QStringList lines;
    };

    std::shared_ptr<Content> m_content = std::make_shared<Content>();
};
