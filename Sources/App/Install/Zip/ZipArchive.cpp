// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipArchive.h"

#include "System/Errors.h"
#include "System/FileDescriptor.h"
#include "System/InputFile.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

/// One byte more than the maximum length of a link's target, to detect a longer one.
constexpr std::size_t maxTargetRead = 2049;

ZipError unreadable(const QString& reason)
{
    return ZipError(u"The archive cannot be read: %1."_s.arg(reason));
}

ZipError damaged(const QString& shownName)
{
    return ZipError(u"The archive entry “%1” is damaged."_s.arg(shownName));
}

/// Throws PlatformError if the system reported `error`, else ZipError.
[[noreturn]] void throwFailure(zip_error_t& error, const QString& shownName)
{
    if (zip_error_system_type(&error) == ZIP_ET_SYS) {
        throw PlatformError::fromErrno(
            PlatformError::tr("Could not read the archive entry “%1”").arg(shownName),
            zip_error_code_system(&error));
    }
    throw damaged(shownName);
}

/// Returns why the archive cannot be opened. Throws PlatformError if the file cannot be read.
QString openFailure(int error, const InputFile& file)
{
    switch (error) {
    case ZIP_ER_OPEN:
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
    case ZIP_ER_TELL:
        throw PlatformError::fromErrno(PlatformError::tr("Could not read “%1”").arg(file.path()),
                                       errno);
    case ZIP_ER_MEMORY:
        return u"there is not enough memory"_s;
    case ZIP_ER_INCONS:
        return u"its headers contradict each other"_s;
    case ZIP_ER_EXISTS:
        return u"it names an entry twice"_s;
    case ZIP_ER_NOZIP:
        return u"it is not a zip archive, or its end is missing"_s;
    default:
        return u"it is damaged"_s;
    }
}

QByteArray bytesAt(const InputFile& file, qint64 offset, qsizetype size)
{
    QByteArray bytes(size, '\0');
    bytes.truncate(static_cast<qsizetype>(
        file.readAt(offset, bytes.data(), static_cast<std::size_t>(bytes.size()))));
    return bytes;
}

template<typename Number>
Number numberAt(const QByteArray& bytes, qsizetype offset)
{
    const auto hasNumber = offset >= 0 && offset + qsizetype(sizeof(Number)) <= bytes.size();
    return hasNumber ? qFromLittleEndian<Number>(bytes.constData() + offset) : Number();
}

/// Returns the number of entries in the end of central directory record: 22 bytes and a comment.
/// For more than 65,534 entries, the zip64 locator, 20 bytes before it, has the offset of the zip64
/// record.
quint64 announcedEntryCount(const InputFile& file)
{
    constexpr qint64 maxEndSize = 20 + 22 + 65'535;
    const auto start = std::max<qint64>(0, file.size() - maxEndSize);
    const auto end = bytesAt(file, start, static_cast<qsizetype>(file.size() - start));
    const auto record = end.lastIndexOf("PK\5\6");
    const auto count = numberAt<quint16>(end, record + 10);
    if (record < 20 || count != std::numeric_limits<quint16>::max())
        return count;
    const auto zip64Record = numberAt<qint64>(end, record - 20 + 8);
    return zip64Record < 0 ? count : numberAt<quint64>(bytesAt(file, zip64Record, 56), 32);
}

/// Returns the Unix mode; 0 if the archive was made on another system.
quint32 modeOf(zip* archive, quint64 index)
{
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(archive, index, 0, &system, &attributes);
    const auto hasMode = system == ZIP_OPSYS_UNIX || system == ZIP_OPSYS_OS_X;
    return hasMode ? attributes >> 16 : 0;
}

ZipEntry::Kind kindOf(quint32 mode, const QByteArray& name)
{
    const auto isNamedAsFolder = name.endsWith('/');
    switch (mode & S_IFMT) {
    case 0: // The mode is unknown or has no file type.
        return isNamedAsFolder ? ZipEntry::Kind::folder : ZipEntry::Kind::file;
    case S_IFREG:
        return isNamedAsFolder ? ZipEntry::Kind::other : ZipEntry::Kind::file;
    case S_IFDIR:
        return ZipEntry::Kind::folder;
    case S_IFLNK:
        return isNamedAsFolder ? ZipEntry::Kind::other : ZipEntry::Kind::link;
    default:
        return ZipEntry::Kind::other;
    }
}

} // namespace

QString ZipEntry::shownName() const
{
    constexpr qsizetype maxLength = 200;
    auto shown = QString::fromUtf8(name.first(std::min(name.size(), maxLength * 4)));
    for (auto& character : shown) {
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return shown.size() <= maxLength ? shown : shown.first(maxLength) + u'…';
}

void ZipArchive::Content::Close::operator()(zip_file* file) const
{
    zip_fclose(file);
}

void ZipArchive::Discard::operator()(zip* archive) const
{
    zip_discard(archive);
}

QByteArrayView ZipArchive::Content::read(std::span<char> buffer)
{
    const auto count = zip_fread(m_file.get(), buffer.data(), buffer.size());
    if (count < 0)
        throwFailure(*zip_file_get_error(m_file.get()), m_shownName);
    return {buffer.data(), static_cast<qsizetype>(count)};
}

ZipArchive::ZipArchive(const InputFile& file)
{
    // libzip reads the whole directory into memory.
    if (announcedEntryCount(file) > maxEntries)
        throw ZipError(u"The archive has too many files and folders."_s);
    // libzip takes ownership of the descriptor.
    FileDescriptor descriptor(::fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0));
    int error = ZIP_ER_OPEN;
    if (descriptor.isOpen())
        m_zip.reset(zip_fdopen(descriptor.get(), ZIP_CHECKCONS, &error));
    if (!m_zip)
        throw unreadable(openFailure(error, file));
    static_cast<void>(descriptor.release());
}

quint64 ZipArchive::entryCount() const
{
    return static_cast<quint64>(zip_get_num_entries(m_zip.get(), 0));
}

ZipEntry ZipArchive::entry(quint64 index) const
{
    zip_stat_t status;
    const auto* const name = zip_get_name(m_zip.get(), index, ZIP_FL_ENC_RAW);
    if (!name || zip_stat_index(m_zip.get(), index, 0, &status) != 0)
        throw unreadable(u"it is damaged"_s);
    const auto mode = modeOf(m_zip.get(), index);
    ZipEntry entry;
    entry.name = name;
    entry.kind = kindOf(mode, entry.name);
    entry.isExecutable = (mode & (S_IXUSR | S_IXGRP | S_IXOTH)) != 0;
    entry.setsUserOrGroup = (mode & (S_ISUID | S_ISGID)) != 0;
    entry.isEncrypted = status.encryption_method != ZIP_EM_NONE;
    entry.hasKnownMethod =
        status.comp_method == ZIP_CM_STORE || status.comp_method == ZIP_CM_DEFLATE;
    entry.size = status.size;
    entry.compressedSize = status.comp_size;
    // libzip does not check the checksum of an empty entry.
    if (status.comp_size == 0 && status.crc != 0)
        throw damaged(entry.shownName());
    if (entry.kind == ZipEntry::Kind::link && !entry.isEncrypted && entry.hasKnownMethod) {
        std::array<char, maxTargetRead> buffer;
        auto content = open(index, entry);
        for (auto piece = content.read(buffer);
             !piece.isEmpty() && entry.target.size() < std::ssize(buffer);
             piece = content.read(buffer))
            entry.target.append(piece);
    }
    return entry;
}

ZipArchive::Content ZipArchive::open(quint64 index, const ZipEntry& entry) const
{
    Content content;
    content.m_shownName = entry.shownName();
    content.m_file.reset(zip_fopen_index(m_zip.get(), index, 0));
    if (!content.m_file)
        throwFailure(*zip_get_error(m_zip.get()), content.m_shownName);
    return content;
}
