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
    if (!bytes.startsWith(byteOrderMark))
        return QString::fromUtf8(bytes);
    return QChar(QChar::ByteOrderMark) + decodedUtf8(bytes.sliced(byteOrderMark.size()));
}
