// SPDX-License-Identifier: MIT
#include "Support/ZipWriter.h"

#include <QtEndian>

namespace {

constexpr quint32 inTheExtraField = 0xffffffff;

template<typename Number>
QByteArray number(Number value)
{
    QByteArray bytes(sizeof value, Qt::Uninitialized);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray number16(qint64 value)
{
    return number(static_cast<quint16>(value));
}

QByteArray number32(qint64 value)
{
    return number(static_cast<quint32>(value));
}

quint32 checksumOf(const QByteArray& data)
{
    quint32 sum = 0xffffffff;
    for (const auto byte : data) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~sum;
}

QByteArray deflated(const QByteArray& data)
{
    // Removes the length and the zlib header and checksum that qCompress adds.
    return qCompress(data).sliced(6).chopped(4);
}

} // namespace

ZipWriter& ZipWriter::add(const Entry& entry)
{
    const Written written{entry, entry.deflated ? deflated(entry.data) : entry.data,
                          entry.offset.value_or(m_bytes.size())};
    if (!entry.offset) {
        const auto name = entry.localName.value_or(entry.name);
        const auto extra = extraField(written, false);
        m_bytes += "PK\3\4" + commonHeader(written, name) + number16(extra.size()) + name + extra +
                   written.body;
    }
    m_entries.append(written);
    return *this;
}

ZipWriter& ZipWriter::addFile(const QByteArray& name, const QByteArray& data)
{
    return add({.name = name, .data = data});
}

ZipWriter& ZipWriter::addLink(const QByteArray& name, const QByteArray& target)
{
    return add({.name = name, .data = target, .mode = S_IFLNK | 0777});
}

QByteArray ZipWriter::archive() const
{
    QByteArray directory;
    for (const auto& written : m_entries)
        directory += directoryHeader(written);
    const auto count = number16(m_entries.size());
    return m_bytes + directory + QByteArray("PK\5\6\0\0\0\0", 8) + count + count +
           number32(directory.size()) + number32(m_bytes.size()) + number16(0);
}

/// The fields from the version to the length of the name, which both headers share.
QByteArray ZipWriter::commonHeader(const Written& written, const QByteArray& name)
{
    const auto& entry = written.entry;
    const auto size = entry.size.value_or(static_cast<quint32>(entry.data.size()));
    return number16(entry.zip64 ? 45 : 20) + number16(entry.flags) +
           number16(entry.method.value_or(entry.deflated ? 8 : 0)) + number32(0x5a215a21) +
           number32(entry.checksum.value_or(checksumOf(entry.data))) +
           number32(entry.zip64 ? inTheExtraField : written.body.size()) +
           number32(entry.zip64 ? inTheExtraField : size) + number16(name.size());
}

QByteArray ZipWriter::extraField(const Written& written, bool inDirectory)
{
    if (!written.entry.zip64)
        return {};
    auto sizes = number<qint64>(written.entry.data.size()) + number<qint64>(written.body.size());
    if (inDirectory)
        sizes += number(written.offset);
    return number16(1) + number16(sizes.size()) + sizes;
}

QByteArray ZipWriter::directoryHeader(const Written& written)
{
    const auto& entry = written.entry;
    const auto extra = extraField(written, true);
    const auto madeBy = number16(entry.mode == 0 ? 20 : (3 << 8 | 30));
    return "PK\1\2" + madeBy + commonHeader(written, entry.name) + number16(extra.size()) +
           QByteArray(6, '\0') + number32(static_cast<qint64>(entry.mode) << 16) +
           number32(entry.zip64 ? inTheExtraField : written.offset) + entry.name + extra;
}
