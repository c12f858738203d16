// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The language of the window's texts, and the direction in which it is read, while this lives.
class Translation final
{
public:
    /// Takes the first of the languages, given as by QLocale::uiLanguages(), that `folder` has a
    /// file for. English, in which the texts are written, needs none, and is also the language
    /// where no other is found.
    Translation(const QString& folder, const QStringList& preferredLanguages);

private:
    void install();

    QTranslator m_texts;
    /// Qt's own texts, such as the context menu of a selectable text.
    QTranslator m_qtTexts;
};
