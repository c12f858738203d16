// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

#include <sys/stat.h>

/// Writes zip archives, also invalid ones: every header field can be set.
class ZipWriter final
{
public:
    struct Entry
    {
        QByteArray name;
        QByteArray data = {};
        /// The Unix mode; 0 for an archive without Unix modes.
        quint32 mode = S_IFREG | 0644;
        bool deflated = false;
        bool zip64 = false;
        /// Bit 0: encrypted; bit 11: the name is UTF-8.
        quint16 flags = 0;
        /// Replaces the compression method in the headers.
        std::optional<quint16> method = std::nullopt;
        /// Replaces the name in the local header.
        std::optional<QByteArray> localName = std::nullopt;
        /// Writes the entry only to the central directory, with this offset of its local header.
        std::optional<qint64> offset = std::nullopt;
        /// Replace the checksum and the size.
        std::optional<quint32> checksum = std::nullopt;
        std::optional<quint32> size = std::nullopt;
    };

    ZipWriter& add(const Entry& entry);
    ZipWriter& addFile(const QByteArray& name, const QByteArray& data = {});
    ZipWriter& addLink(const QByteArray& name, const QByteArray& target);

    /// The whole archive, with the central directory.
    [[nodiscard]] QByteArray archive() const;
    /// The archive before the central directory.
    [[nodiscard]] const QByteArray& localPart() const { return m_bytes; }

private:
    struct Written
    {
        Entry entry;
        QByteArray body;
        qint64 offset = 0;
    };

    static QByteArray commonHeader(const Written& written, const QByteArray& name);
    static QByteArray extraField(const Written& written, bool inDirectory);
    static QByteArray directoryHeader(const Written& written);

    QByteArray m_bytes;
    QList<Written> m_entries;
};
