// SPDX-License-Identifier: MIT
#include "Platform/CertificateStore.h"

#include <QFile>

QByteArray certificateFile(const QByteArray& builtIn, std::span<const char* const> usual)
{
    const auto exists = [](const QByteArray& file) {
        return QFile::exists(QFile::decodeName(file));
    };
    if (exists(builtIn))
        return builtIn;
    for (const QByteArray file : usual) {
        if (exists(file))
            return file;
    }
    return {};
}
