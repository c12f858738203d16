// SPDX-License-Identifier: MIT
#include "Install/ZipReader.h"

#include "Install/ZipError.h"

#include <QFile>

#include <archive.h>
#include <archive_entry.h>

#include <sys/stat.h>

namespace {

constexpr std::size_t blockSize = std::size_t{64} * 1024;

ZipEntry::Kind kindOf(archive_entry* entry)
{
    switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
        return archive_entry_hardlink(entry) ? ZipEntry::Kind::other : ZipEntry::Kind::file;
    case AE_IFDIR:
        return ZipEntry::Kind::folder;
    case AE_IFLNK:
        return ZipEntry::Kind::link;
    default:
        return ZipEntry::Kind::other;
    }
}

ZipEntry entryFrom(archive_entry* source)
{
    const auto mode = archive_entry_perm(source);
    ZipEntry entry;
    entry.name = archive_entry_pathname(source);
    entry.kind = kindOf(source);
    entry.executable = (mode & (S_IXUSR | S_IXGRP | S_IXOTH)) != 0;
    entry.setsUserOrGroup = (mode & (S_ISUID | S_ISGID)) != 0;
    entry.encrypted = archive_entry_is_encrypted(source) != 0;
    if (archive_entry_size_is_set(source))
        entry.size = archive_entry_size(source);
    if (entry.kind == ZipEntry::Kind::link)
        entry.target = archive_entry_symlink(source);
    return entry;
}

bool sameText(const QByteArray& stored, const QByteArray& composed)
{
    return stored != composed &&
           QString::fromUtf8(stored).normalized(QString::NormalizationForm_C) ==
               QString::fromUtf8(composed).normalized(QString::NormalizationForm_C);
}

} // namespace

void ZipReader::Close::operator()(archive* reader) const
{
    archive_read_free(reader);
}

ZipReader::ZipReader(const QString& file)
    : m_directory(ZipDirectoryEntry::readAll(file))
    , m_reader(archive_read_new())
{
    const auto name = QFile::encodeName(file);
    if (archive_read_support_format_zip_seekable(m_reader.get()) != ARCHIVE_OK ||
        archive_read_open_filename(m_reader.get(), name.constData(), blockSize) != ARCHIVE_OK)
        throw damage();
}

std::optional<ZipEntry> ZipReader::next()
{
    archive_entry* entry = nullptr;
    const auto result = archive_read_next_header(m_reader.get(), &entry);
    if (result == ARCHIVE_EOF && m_position == m_directory.size())
        return std::nullopt;
    // The library drops an entry whose data is another one's.
    if (result != ARCHIVE_OK || m_position == m_directory.size())
        throw damage();
    auto read = entryFrom(entry);
    correct(read);
    return read;
}

void ZipReader::correct(ZipEntry& entry)
{
    const auto& stored = m_directory[m_position++];
    if ((stored.mode & S_IFMT) == S_IFIFO)
        entry.kind = ZipEntry::Kind::other;
    // Otherwise the library knows better, e.g. from a field that has the name in Unicode.
    if (stored.name.contains('\0') || sameText(stored.name, entry.name))
        entry.name = stored.name;
}

QByteArrayView ZipReader::read()
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    la_int64_t offset = 0;
    // A block may be empty in the middle of an entry, where the library's input buffer ends.
    do {
        const auto result = archive_read_data_block(m_reader.get(), &bytes, &size, &offset);
        if (result == ARCHIVE_EOF)
            return {};
        if (result != ARCHIVE_OK)
            throw damage();
    } while (size == 0);
    return {static_cast<const char*>(bytes), static_cast<qsizetype>(size)};
}

ZipError ZipReader::damage() const
{
    const auto* const reason = archive_error_string(m_reader.get());
    return ZipError(QStringLiteral("The archive cannot be read: %1.")
                        .arg(reason ? QString::fromUtf8(reason) : QStringLiteral("it is damaged")));
}
