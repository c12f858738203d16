// SPDX-License-Identifier: MIT
#include "Install/ChecksumList.h"

#include "Platform/Utf8.h"

#include <QList>
#include <QStringView>

#include <algorithm>

namespace {

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

/// What stands between runs of spaces and tabs.
QList<QStringView> fieldsOf(QStringView line)
{
    QList<QStringView> fields;
    const auto* at = line.begin();
    while (true) {
        at = std::find_if_not(at, line.end(), isBlank);
        if (at == line.end())
            return fields;
        const auto* const end = std::find_if(at, line.end(), isBlank);
        fields.append(QStringView(at, end));
        at = end;
    }
}

QStringView withoutAsterisks(QStringView name)
{
    while (name.startsWith(u'*'))
        name = name.sliced(1);
    while (name.endsWith(u'*'))
        name.chop(1);
    return name;
}

} // namespace

std::optional<QString> ChecksumList::digestFor(const QByteArray& list, const QString& fileName)
{
    const auto text = decodedUtf8(list);
    std::optional<QString> digest;
    for (const auto line : QStringView(text).split(u'\n')) {
        const auto fields = fieldsOf(line);
        if (fields.size() >= 2 && withoutAsterisks(fields.last()) == fileName)
            digest = fields.first().toString().toLower();
    }
    return digest;
}
