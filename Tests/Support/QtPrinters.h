// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>

#include <ostream>

// GoogleTest would print QString and QByteArray as containers of numbers.

inline std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << text.toStdString();
}

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << testing::PrintToString(text.toStdString());
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream)
{
    *stream << testing::PrintToString(bytes.toStdString());
}
