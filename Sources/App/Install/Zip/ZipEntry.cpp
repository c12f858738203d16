// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipEntry.h"

#include <algorithm>

QString ZipEntry::shownName() const
{
    constexpr qsizetype maxLength = 200;
    auto shown = QString::fromUtf8(name.first(std::min(name.size(), maxLength * 4)));
    for (auto& character : shown) {
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return shown.size() <= maxLength ? shown : shown.first(maxLength) + u'…';
}
