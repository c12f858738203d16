// SPDX-License-Identifier: MIT
#include "Install/ZipEntry.h"

#include <algorithm>

QString ZipEntry::shownName() const
{
    constexpr qsizetype longest = 200;
    auto shown = QString::fromUtf8(name.first(std::min(name.size(), longest * 4)));
    for (auto& character : shown) {
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return shown.size() <= longest ? shown : shown.first(longest) + u'…';
}
