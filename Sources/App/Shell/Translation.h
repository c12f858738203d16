// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The language of the texts and the direction of the layout. Installed while the object exists.
class Translation final
{
public:
    /// Installs the first of the languages, in the format of QLocale::uiLanguages(), that has a
    /// file in `folder`. English needs no file, and is the default.
    Translation(const QString& folder, const QStringList& preferredLanguages);

private:
    void install();

    QTranslator m_texts;
    /// Qt's own texts, such as the context menu of a selectable text.
    QTranslator m_qtTexts;
};
