// SPDX-License-Identifier: MIT
#include "System/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

std::optional<QString> Text::readFile(const QString& path, qint64 maxSize)
{
    // Checked first: opening a named pipe would block until it has a writer.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxSize)
        return std::nullopt;
    // Not read(maxSize), which would allocate that much.
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
    using Flag = QStringDecoder::Flag;
    return QStringDecoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom)(bytes);
}
