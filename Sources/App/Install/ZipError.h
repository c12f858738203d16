// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stdexcept>

/// Why an archive is not unpacked: one sentence, as a tool would print it. It stays within the
/// unpacking, which writes it to the log and ends with a status.
class ZipError final : public std::runtime_error
{
public:
    explicit ZipError(const QString& sentence)
        : std::runtime_error(sentence.toStdString())
    {
    }

    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};
