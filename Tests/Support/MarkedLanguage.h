// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// A language in which every text is the English one between marks, spoken while this lives.
class MarkedLanguage final : public QTranslator
{
public:
    MarkedLanguage() { QCoreApplication::installTranslator(this); }
    ~MarkedLanguage() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* source, const char*,
                                    int) const override
    {
        return u'<' + QString::fromUtf8(source) + u'>';
    }
};
