// SPDX-License-Identifier: MIT
#include "System/ByteCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Unit
{
    Q_DECLARE_TR_FUNCTIONS(Unit)

public:
    qint64 bytes;
    int decimals;
    const char* pattern;
};

constexpr std::array units{
    //: Kilobytes: 1000 bytes, as the desktop's file manager writes it.
    Unit{1'000, 0, QT_TRANSLATE_NOOP("Unit", "%1 KB")},
    Unit{1'000'000, 1, QT_TRANSLATE_NOOP("Unit", "%1 MB")},
    Unit{1'000'000'000, 2, QT_TRANSLATE_NOOP("Unit", "%1 GB")},
    Unit{1'000'000'000'000, 2, QT_TRANSLATE_NOOP("Unit", "%1 TB")},
    Unit{1'000'000'000'000'000, 2, QT_TRANSLATE_NOOP("Unit", "%1 PB")},
};

QString withoutTrailingZeros(QString number)
{
    if (!number.contains(u'.'))
        return number;
    while (number.endsWith(u'0'))
        number.chop(1);
    if (number.endsWith(u'.'))
        number.chop(1);
    return number;
}

QString inUnit(qint64 bytes, const Unit& unit)
{
    const auto amount = static_cast<double>(bytes) / static_cast<double>(unit.bytes);
    return withoutTrailingZeros(QString::number(amount, 'f', unit.decimals));
}

/// Returns a number such as "7.3" as it is written in the player's locale.
QString localized(const QString& number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto point = number.indexOf(u'.');
    const auto decimals = point < 0 ? 0 : number.size() - point - 1;
    return locale.toString(number.toDouble(), 'f', static_cast<int>(decimals));
}

} // namespace

QString formattedByteCount(qint64 bytes)
{
    if (bytes == 0)
        return Unit::tr("Zero KB");
    if (bytes == 1)
        return Unit::tr("1 byte");
    if (bytes > -1'000 && bytes < 1'000)
        return Unit::tr("%n bytes", nullptr, static_cast<int>(bytes));
    const auto magnitude = bytes < 0 ? -static_cast<double>(bytes) : static_cast<double>(bytes);
    std::size_t index = 0;
    while (index + 1 < units.size() && magnitude >= static_cast<double>(units[index + 1].bytes))
        ++index;
    // An amount that rounds up to 1000 is written as 1 of the next unit.
    auto number = inUnit(bytes, units[index]);
    if (index + 1 < units.size() && (number == "1000"_L1 || number == "-1000"_L1))
        number = inUnit(bytes, units[++index]);
    return Unit::tr(units[index].pattern).arg(localized(number));
}
