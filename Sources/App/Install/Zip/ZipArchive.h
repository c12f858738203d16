// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>
#include <span>
#include <stdexcept>

class InputFile;
struct zip;
struct zip_file;

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

/// A zip archive, open for reading. An archive without a central directory (such as a truncated
/// one), or whose local headers differ from it, is refused.
class ZipArchive final
{
public:
    /// The content of one entry, read from its beginning to its end.
    class Content final
    {
    public:
        /// Reads into `buffer` and returns what was read; empty at the end. Throws ZipError, at the
        /// end also for a wrong checksum.
        QByteArrayView read(std::span<char> buffer);

    private:
        friend ZipArchive;
        struct Close
        {
            void operator()(zip_file* file) const;
        };
        std::unique_ptr<zip_file, Close> m_file;
        QString m_shownName;
    };

    /// Far more than any real game has.
    static constexpr quint64 maxEntries = 500'000;

    /// Throws ZipError if `file` is no valid zip archive or has more than `maxEntries` entries;
    /// PlatformError if it cannot be read.
    explicit ZipArchive(const InputFile& file);

    [[nodiscard]] quint64 entryCount() const;
    /// Reads the headers of the entry at `index`, and the target of a link. Throws ZipError.
    [[nodiscard]] ZipEntry entry(quint64 index) const;
    /// Opens the content of the entry at `index`. Throws ZipError.
    [[nodiscard]] Content open(quint64 index, const ZipEntry& entry) const;

private:
    struct Discard
    {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Discard> m_zip;
};
