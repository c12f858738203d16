// SPDX-License-Identifier: MIT
#include "Platform/TextFile.h"

#include <QFile>
#include <QFileInfo>

std::optional<QString> TextFile::read(const QString& path)
{
    // Looked at before it is opened: opening a pipe would wait for its writer.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maximumSize)
        return std::nullopt;
    const auto bytes = file.read(maximumSize + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > maximumSize)
        return std::nullopt;
    if (!QByteArrayView(bytes).isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(bytes);
}

QStringView TextFile::trimmedBlanks(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}
