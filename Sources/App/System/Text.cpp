// SPDX-License-Identifier: MIT
#include "System/Text.h"

#include <QFile>
#include <QFileInfo>

std::optional<QString> Text::readFile(const QString& path, qint64 maxSize)
{
    // Looked at before it is opened: opening a pipe would wait for its writer.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxSize)
        return std::nullopt;
    // QFile allocates as much as it is asked for, so not the maximum.
    const auto bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError || !QByteArrayView(bytes).isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(bytes);
}

QStringView Text::trimmedBlanks(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

QString Text::decodedUtf8(QByteArrayView bytes)
{
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    qsizetype marks = 0;
    for (; bytes.startsWith(byteOrderMark); ++marks)
        bytes = bytes.sliced(byteOrderMark.size());
    const auto text = QString::fromUtf8(bytes);
    return marks == 0 ? text : QString(marks, QChar::ByteOrderMark) + text;
}
