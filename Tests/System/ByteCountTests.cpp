// SPDX-License-Identifier: MIT
#include "System/ByteCount.h"

#include "Support/QtPrinters.h"

#include <QLocale>
#include <QScopeGuard>

#include <cstdlib>
#include <ostream>
#include <string>

namespace {

struct Example
{
    qint64 bytes;
    QStringView text;
};

void PrintTo(const Example& example, std::ostream* stream)
{
    *stream << example.bytes;
}

std::string nameOf(const testing::TestParamInfo<Example>& example)
{
    const auto bytes = example.param.bytes;
    return (bytes < 0 ? "minus" : "") + std::to_string(std::abs(bytes)) + "Bytes";
}

class ByteCount : public testing::TestWithParam<Example>
{
};

TEST_P(ByteCount, isWrittenInTheStyleOfAFileSize)
{
    EXPECT_EQ(formattedByteCount(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, ByteCount,
    testing::Values(Example{0, u"Zero KB"}, Example{1, u"1 byte"}, Example{512, u"512 bytes"},
                    Example{999, u"999 bytes"}, Example{1000, u"1 KB"}, Example{11'999, u"12 KB"},
                    Example{12'345, u"12 KB"}, Example{7'300'000, u"7.3 MB"},
                    Example{70'100'000, u"70.1 MB"}, Example{123'456'789, u"123.5 MB"},
                    Example{999'900'000, u"999.9 MB"}, Example{1'000'000'000, u"1 GB"},
                    Example{1'500'000'000, u"1.5 GB"}, Example{1'234'567'898, u"1.23 GB"},
                    Example{999'999, u"1 MB"}, Example{999'999'999, u"1 GB"},
                    Example{-2'000, u"-2 KB"}),
    nameOf);

TEST(LocalizedByteCount, hasTheDigitsAndTheSeparatorOfThePlayersLocale)
{
    const auto guard = qScopeGuard([former = QLocale()] { QLocale::setDefault(former); });
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(formattedByteCount(7'300'000), u"7,3 MB");
    EXPECT_EQ(formattedByteCount(1'234'567'898), u"1,23 GB");
    EXPECT_EQ(formattedByteCount(9'000'000'000'000'000'000), u"9000 PB");
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(formattedByteCount(7'300'000), u"٧٫٣ MB");
}

} // namespace
