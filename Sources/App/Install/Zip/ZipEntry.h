// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
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

/// One entry of a zip archive as its headers describe it. Nothing of it has been checked.
struct ZipEntry
{
    enum class Kind { file, folder, link, other };

    /// The name as the archive has it.
    QByteArray name;
    Kind kind = Kind::other;
    bool isExecutable = false;
    bool setsUserOrGroup = false;
    bool isEncrypted = false;
    /// Whether it is stored or deflated.
    bool hasKnownMethod = true;
    /// The sizes of the content in bytes.
    quint64 size = 0;
    quint64 compressedSize = 0;
    /// A link's target.
    QByteArray target;

    /// The name for a sentence: on one line, of bounded length.
    [[nodiscard]] QString shownName() const;
};
