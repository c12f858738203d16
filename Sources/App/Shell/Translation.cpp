// SPDX-License-Identifier: MIT
#include "Shell/Translation.h"

#include "Project/GameFacts.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

Translation::Translation(const QString& folder, const QStringList& preferredLanguages)
{
    for (const auto& language : preferredLanguages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            return;
        // Without a file for the player's country, takes that of the language's principal country
        // with the same script: Brazil's for Portugal, but not mainland China's for Taiwan.
        const QLocale principal(locale.language(), locale.script(), QLocale::AnyTerritory);
        for (const auto& name : {locale.name(), principal.name()}) {
            if (m_texts.load(u"%1_%2"_s.arg(GameFacts::programName, name), folder)) {
                install();
                return;
            }
        }
    }
}

void Translation::install()
{
    const auto language = m_texts.language();
    QCoreApplication::installTranslator(&m_texts);
    if (m_qtTexts.load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qtTexts);
    // Qt takes the direction from its own texts, which may be missing or wrong.
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}
