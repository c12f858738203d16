// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogCallback.h"

#include <QStringList>

#include <memory>
#include <mutex>

/// Collects, from any thread, the lines written to its callback.
class CollectedLines final
{
public:
    /// What writes here. It may outlive this object.
    [[nodiscard]] LogCallback callback() const
    {
        return [content = m_content](const QString& line) {
            const std::lock_guard guard(content->lock);
            content->lines.append(line);
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
