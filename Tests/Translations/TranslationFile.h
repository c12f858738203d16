// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <utility>

/// A file of translations, as Qt's tools and Qt Linguist write it.
struct TranslationFile
{
    struct Message
    {
        bool isFinished = false;
        /// One text, or one for each plural form of the language.
        QStringList texts;
        bool isPlural = false;
    };

    /// Reads the file at `path`, which has to be well-formed.
    explicit TranslationFile(const QString& path);

    QString language;
    /// By context and English text.
    std::map<std::pair<QString, QString>, Message> messages;
};
