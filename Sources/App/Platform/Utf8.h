// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

/// `bytes` decoded as UTF-8, every ill-formed sequence as U+FFFD. A byte order mark is a character
/// like any other, so that what text becomes does not depend on where it is cut; QString::fromUtf8
/// would leave it out at the beginning.
inline QString decodedUtf8(QByteArrayView bytes)
{
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    qsizetype marks = 0;
    for (; bytes.startsWith(byteOrderMark); ++marks)
        bytes = bytes.sliced(byteOrderMark.size());
    const auto text = QString::fromUtf8(bytes);
    return marks == 0 ? text : QString(marks, QChar::ByteOrderMark) + text;
}
