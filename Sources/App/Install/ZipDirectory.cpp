// SPDX-License-Identifier: MIT
#include "Install/ZipDirectory.h"

#include "Install/ZipError.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace {

// The layout is that of APPNOTE.TXT, which defines the zip format, 4.3.12 to 4.3.16.
constexpr qint64 endSize = 22;
constexpr qint64 locatorSize = 20;
constexpr qint64 end64Size = 56;
constexpr qsizetype headerSize = 46;
constexpr qint64 longestComment = 65'535;
/// Some 100,000s of entries; a larger directory would only serve to fill memory.
constexpr quint64 largestDirectory = quint64{64} * 1024 * 1024;
constexpr quint64 mostEntries = 1'000'000;

constexpr quint32 elsewhere32 = 0xffffffff;
constexpr quint16 elsewhere16 = 0xffff;
constexpr quint16 zip64Field = 1;
constexpr quint8 madeOnUnix = 3;
constexpr quint8 madeOnMac = 19;

[[noreturn]] void throwDamaged()
{
    throw ZipError(QStringLiteral("The archive cannot be read: its directory is damaged."));
}

/// Numbers at offsets of some bytes, none of which may lie outside of them.
class Record final
{
public:
    explicit Record(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    [[nodiscard]] quint16 u16(qsizetype at) const { return number<quint16>(at); }
    [[nodiscard]] quint32 u32(qsizetype at) const { return number<quint32>(at); }
    [[nodiscard]] quint64 u64(qsizetype at) const { return number<quint64>(at); }
    [[nodiscard]] QByteArrayView part(qsizetype at, qsizetype size) const
    {
        if (at < 0 || size < 0 || size > m_bytes.size() || at > m_bytes.size() - size)
            throwDamaged();
        return m_bytes.sliced(at, size);
    }
    [[nodiscard]] qsizetype size() const { return m_bytes.size(); }

private:
    template<typename Number>
    [[nodiscard]] Number number(qsizetype at) const
    {
        return qFromLittleEndian<Number>(part(at, sizeof(Number)).data());
    }

    QByteArrayView m_bytes;
};

struct Location
{
    quint64 offset = 0;
    quint64 size = 0;
    quint64 count = 0;
};

QByteArray readAt(QFile& file, quint64 offset, quint64 size)
{
    const auto end = static_cast<quint64>(file.size());
    if (size > end || offset > end - size || !file.seek(static_cast<qint64>(offset)))
        throwDamaged();
    auto bytes = file.read(static_cast<qint64>(size));
    if (static_cast<quint64>(bytes.size()) != size)
        throwDamaged();
    return bytes;
}

Location locationFrom64(QFile& file, quint64 end)
{
    if (end < static_cast<quint64>(locatorSize))
        throwDamaged();
    const auto locator = readAt(file, end - locatorSize, locatorSize);
    if (!locator.startsWith("PK\6\7"))
        throwDamaged();
    const auto bytes = readAt(file, Record(locator).u64(8), end64Size);
    if (!bytes.startsWith("PK\6\6"))
        throwDamaged();
    const Record record(bytes);
    return {.offset = record.u64(48), .size = record.u64(40), .count = record.u64(32)};
}

Location findDirectory(QFile& file)
{
    const auto tailSize = std::min(file.size(), endSize + longestComment);
    const auto tailStart = static_cast<quint64>(file.size() - tailSize);
    const auto tail = readAt(file, tailStart, static_cast<quint64>(tailSize));
    const auto at = tail.lastIndexOf("PK\5\6");
    if (at < 0)
        throw ZipError(QStringLiteral("The archive cannot be read: it has no directory."));
    const Record record(QByteArrayView(tail).sliced(at));
    const Location location{
        .offset = record.u32(16), .size = record.u32(12), .count = record.u16(10)};
    if (location.offset == elsewhere32 || location.size == elsewhere32 ||
        location.count == elsewhere16)
        return locationFrom64(file, tailStart + static_cast<quint64>(at));
    return location;
}

/// The place of the entry's data, where the header itself has no room for it.
quint64 offsetFrom64(const Record& header, const Record& extra)
{
    qsizetype at = 0;
    while (at + 4 <= extra.size()) {
        const auto size = extra.u16(at + 2);
        if (extra.u16(at) == zip64Field) {
            const auto sizesBefore =
                (header.u32(24) == elsewhere32 ? 1 : 0) + (header.u32(20) == elsewhere32 ? 1 : 0);
            return extra.u64(at + 4 + qsizetype{8} * sizesBefore);
        }
        at += 4 + size;
    }
    throwDamaged();
}

ZipDirectoryEntry entryFrom(const Record& header, const Record& rest)
{
    const auto system = static_cast<quint8>(header.u16(4) >> 8);
    const auto nameSize = header.u16(28);
    ZipDirectoryEntry entry;
    entry.name = rest.part(0, nameSize).toByteArray();
    if (system == madeOnUnix || system == madeOnMac)
        entry.mode = header.u32(38) >> 16;
    entry.offset = header.u32(42);
    if (entry.offset == elsewhere32)
        entry.offset = offsetFrom64(header, Record(rest.part(nameSize, header.u16(30))));
    return entry;
}

} // namespace

std::vector<ZipDirectoryEntry> ZipDirectoryEntry::readAll(const QString& file)
{
    QFile archive(file);
    if (!archive.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw ZipError(
            QStringLiteral("The archive cannot be read: %1.").arg(archive.errorString()));
    const auto location = findDirectory(archive);
    if (location.size > largestDirectory || location.count > mostEntries)
        throw ZipError(QStringLiteral("The archive has too many entries."));
    const auto bytes = readAt(archive, location.offset, location.size);
    std::vector<ZipDirectoryEntry> entries;
    qsizetype at = 0;
    const Record directory(bytes);
    for (quint64 i = 0; i < location.count; ++i) {
        const Record header(directory.part(at, headerSize));
        if (header.u32(0) != qFromLittleEndian<quint32>("PK\1\2"))
            throwDamaged();
        const auto restSize = qsizetype{header.u16(28)} + header.u16(30) + header.u16(32);
        entries.push_back(entryFrom(header, Record(directory.part(at + headerSize, restSize))));
        at += headerSize + restSize;
    }
    std::ranges::stable_sort(entries, {}, &ZipDirectoryEntry::offset);
    return entries;
}
