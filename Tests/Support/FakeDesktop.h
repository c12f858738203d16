// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Desktop.h"

#include <QString>
#include <QStringList>

#include <functional>

/// A desktop that answers questions with `answer` and records all calls.
class FakeDesktop final : public Desktop
{
public:
    struct Question
    {
        QString title;
        QString message;
        QString button;
    };

    bool confirm(const QString& title, const QString& message, const QString& button) override
    {
        questions.append({title, message, button});
        if (whileAsking)
            whileAsking();
        return answer;
    }
    void copyText(const QString& text) override { copied.append(text); }
    void openFolder(const QString& path) override { opened.append(path); }
    void revealFolder(const QString& path) override { revealed.append(path); }

    bool answer = true;
    /// Called while a question is open.
    std::function<void()> whileAsking;
    QList<Question> questions;
    QStringList copied;
    QStringList opened;
    QStringList revealed;
};
