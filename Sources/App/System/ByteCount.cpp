// SPDX-License-Identifier: MIT
#include "System/ByteCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>
#include <iterator>

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

/// Returns the amount in `unit`, rounded to its decimals.
double inUnit(qint64 bytes, const Unit& unit)
{
    const auto amount = static_cast<double>(bytes) / static_cast<double>(unit.bytes);
    return QString::number(amount, 'f', unit.decimals).toDouble();
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
    auto unit = units.begin();
    // An amount that rounds up to 1000 is written as 1 of the next unit.
    while (std::abs(inUnit(bytes, *unit)) >= 1'000 && std::next(unit) != units.end())
        ++unit;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto amount = inUnit(bytes, *unit);
    return Unit::tr(unit->pattern)
        .arg(locale.toString(amount, 'f', QLocale::FloatingPointShortest));
}
