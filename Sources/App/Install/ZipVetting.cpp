// SPDX-License-Identifier: MIT
#include "Install/ZipVetting.h"

#include "Install/ZipError.h"
#include "Platform/Cancelled.h"

#include <QByteArrayView>

#include <limits>
#include <string_view>
#include <vector>

namespace {

// Real archives stay far below these; they keep every path usable by the system calls.
constexpr qsizetype longestPart = 255;
constexpr qsizetype longestName = 2048;
constexpr qsizetype deepestFolder = 128;
/// Far above any real game. Names can imply a hundred folders each, so that what is remembered of
/// an archive could otherwise take fifty times the memory that its directory does.
constexpr std::size_t mostPlaces = 500'000;
constexpr std::size_t mostRememberedBytes = std::size_t{256} * 1024 * 1024;
/// As many links as the system itself would follow in one path.
constexpr int mostLinksOnTheWay = 40;

ZipError refusal(const ZipEntry& entry, const QString& reason)
{
    return ZipError(QStringLiteral("The archive entry “%1” %2.").arg(entry.shownName(), reason));
}

std::vector<std::string_view> partsOf(std::string_view path)
{
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const auto slash = path.find('/');
        const auto part = path.substr(0, slash);
        if (!part.empty() && part != ".")
            parts.push_back(part);
        path = slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
    }
    return parts;
}

/// The parts of `first`, to be walked before those of `rest`, in the reverse order of the walk.
void pushParts(std::vector<std::string>& rest, std::string_view first)
{
    const auto parts = partsOf(first);
    rest.insert(rest.end(), parts.rbegin(), parts.rend());
}

std::string folderOf(const std::string& place)
{
    const auto slash = place.rfind('/');
    return slash == std::string::npos ? std::string() : place.substr(0, slash);
}

} // namespace

void ZipVetting::add(const ZipEntry& entry)
{
    if (entry.kind == ZipEntry::Kind::other)
        throw refusal(entry, QStringLiteral("is neither a file nor a folder nor a link"));
    if (entry.encrypted)
        throw refusal(entry, QStringLiteral("is encrypted"));
    if (entry.setsUserOrGroup)
        throw refusal(entry, QStringLiteral("would run with another user's rights"));
    const auto place = placeOf(entry).toStdString();
    if (place.empty() && entry.kind != ZipEntry::Kind::folder)
        throw refusal(entry, QStringLiteral("has no name"));
    if (entry.kind == ZipEntry::Kind::link &&
        (entry.target.isEmpty() || entry.target.size() > longestName))
        throw refusal(entry, QStringLiteral("leads nowhere"));
    addSize(entry);
    addFoldersAbove(entry, place);
    addPlace(entry, place);
}

QByteArray ZipVetting::placeOf(const ZipEntry& entry)
{
    const auto& name = entry.name;
    if (name.isEmpty() || name.contains('\0'))
        throw refusal(entry, QStringLiteral("has no name"));
    if (name.size() > longestName)
        throw refusal(entry, QStringLiteral("has too long a name"));
    if (name.startsWith('/'))
        throw refusal(entry, QStringLiteral("would lie outside the folder"));
    QByteArray place;
    qsizetype depth = 0;
    for (const auto part : partsOf({name.constData(), static_cast<std::size_t>(name.size())})) {
        const QByteArrayView view(part);
        if (part == "..")
            throw refusal(entry, QStringLiteral("would lie outside the folder"));
        if (view.size() > longestPart || ++depth > deepestFolder)
            throw refusal(entry, QStringLiteral("has too long a name"));
        if (!place.isEmpty())
            place.append('/');
        place.append(view);
    }
    return place;
}

void ZipVetting::addSize(const ZipEntry& entry)
{
    if (entry.kind != ZipEntry::Kind::file)
        return;
    if (entry.size < 0 || entry.size > std::numeric_limits<qint64>::max() - m_totalSize)
        throw refusal(entry, QStringLiteral("does not tell its size"));
    m_totalSize += entry.size;
}

void ZipVetting::addFoldersAbove(const ZipEntry& entry, const std::string& place)
{
    for (auto folder = folderOf(place); !folder.empty(); folder = folderOf(folder)) {
        const auto [known, isNew] = m_places.try_emplace(folder);
        if (known->second.kind != ZipEntry::Kind::folder)
            throw refusal(entry, QStringLiteral("would lie below a file or a link"));
        if (!isNew)
            return;
        countPlace(folder.size());
    }
}

void ZipVetting::countPlace(std::size_t bytes)
{
    m_rememberedBytes += bytes;
    if (m_places.size() > mostPlaces || m_rememberedBytes > mostRememberedBytes)
        throw ZipError(QStringLiteral("The archive has too many files and folders."));
}

void ZipVetting::addPlace(const ZipEntry& entry, const std::string& place)
{
    const auto [known, isNew] = m_places.try_emplace(place);
    if (!isNew && (known->second.hasOwnEntry || entry.kind != ZipEntry::Kind::folder))
        throw refusal(entry, QStringLiteral("occurs twice"));
    known->second = {entry.kind, true, entry.target.toStdString()};
    countPlace(place.size() + known->second.target.size());
}

void ZipVetting::checkLinks(const std::stop_token& stop) const
{
    for (const auto& [place, what] : m_places) {
        if (what.kind != ZipEntry::Kind::link)
            continue;
        checkLink(place, stop);
    }
}

void ZipVetting::checkLink(const std::string& link, const std::stop_token& stop) const
{
    const auto refuse = [&link](const QString& reason) {
        ZipEntry entry;
        entry.name = QByteArray::fromStdString(link);
        throw refusal(entry, reason);
    };
    // Walked as the system would: a link on the way is replaced by where it leads. Text alone does
    // not tell, for after a link, ".." is not the folder that the link stands in.
    std::vector<std::string> rest{std::string(partsOf(link).back())};
    auto here = folderOf(link);
    int linksOnTheWay = 0;
    while (!rest.empty()) {
        throwIfCancelled(stop);
        const auto part = std::move(rest.back());
        rest.pop_back();
        if (std::string_view(part) == "..") {
            if (here.empty())
                refuse(QStringLiteral("leads outside the folder"));
            here = folderOf(here);
            continue;
        }
        // Not one expression: GCC 12 takes part of the temporary for uninitialised.
        auto next = here;
        if (!next.empty())
            next += '/';
        next += part;
        // The system follows no longer path either, and each step costs as much as it is long.
        if (next.size() > static_cast<std::size_t>(longestName))
            refuse(QStringLiteral("leads along too long a path"));
        const auto known = m_places.find(next);
        if (known == m_places.end() || known->second.kind != ZipEntry::Kind::link) {
            here = std::move(next);
            continue;
        }
        const auto& target = known->second.target;
        if (target.front() == '/')
            refuse(QStringLiteral("leads outside the folder"));
        if (++linksOnTheWay > mostLinksOnTheWay)
            refuse(QStringLiteral("leads through too many links"));
        pushParts(rest, target);
    }
}
