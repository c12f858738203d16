// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>

/// Why an archive is not unpacked: one sentence, not translated. ZipExtractor writes it to the log.
class ZipError final : public std::runtime_error
{
public:
    explicit ZipError(const QString& sentence)
        : std::runtime_error(sentence.toStdString())
    {
    }

    [[nodiscard]] QString message() const { return QString::fromUtf8(what()); }
};

/// One entry of a zip archive as its headers describe it, not validated.
struct ZipEntry
{
    enum class Kind { file, folder, link, other };

    /// The raw name.
    QByteArray name;
    Kind kind = Kind::other;
    bool isExecutable = false;
    bool setsUserOrGroup = false;
    bool isEncrypted = false;
    /// True if it is stored or deflated.
    bool hasKnownMethod = true;
    /// The sizes of the content in bytes.
    quint64 size = 0;
    quint64 compressedSize = 0;
    /// A link's target.
    QByteArray target;

    /// Returns the name for a message: one line of limited length.
    [[nodiscard]] QString shownName() const;
};
