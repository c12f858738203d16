// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Installs a translation of every text "x" to "<x>" until the destructor.
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
