// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

#include <sys/stat.h>

/// Writes zip archives, also such as no honest tool would write: every field of a header is free.
class ZipWriter final
{
public:
    struct Entry
    {
        QByteArray name;
        QByteArray data = {};
        /// The Unix mode; 0 for an archive of a system without modes.
        quint32 mode = S_IFREG | 0644;
        bool deflated = false;
        bool zip64 = false;
        /// Bit 0: encrypted; bit 11: the name is UTF-8.
        quint16 flags = 0;
        /// In place of the method that belongs to the data.
        std::optional<quint16> method = std::nullopt;
        /// In place of the name, in the header before the data.
        std::optional<QByteArray> localName = std::nullopt;
        /// The entry is only in the directory, and its header is at this place in another's data.
        std::optional<qint64> offset = std::nullopt;
        /// In place of the true checksum and size.
        std::optional<quint32> checksum = std::nullopt;
        std::optional<quint32> size = std::nullopt;
    };

    ZipWriter& add(const Entry& entry);
    ZipWriter& addFile(const QByteArray& name, const QByteArray& data = {});
    ZipWriter& addLink(const QByteArray& name, const QByteArray& target);

    /// The whole archive, with its directory.
    [[nodiscard]] QByteArray archive() const;
    /// What comes before the directory.
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
