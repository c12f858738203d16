// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipVetting.h"

#include "System/Errors.h"

#include <QByteArrayView>

#include <algorithm>
#include <limits>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// Far more than in real archives, and short enough for every system call.
constexpr qsizetype maxPartLength = 255;
constexpr qsizetype maxPathLength = 2048;
constexpr qsizetype maxDepth = 128;
/// Far more than any real game has. One name can imply a hundred folders, so without these limits
/// the paths could take fifty times the memory of the directory.
constexpr std::size_t maxPaths = 500'000;
constexpr std::size_t maxPathBytes = std::size_t{256} * 1024 * 1024;
/// As many links as Linux follows in one path.
constexpr int maxLinkDepth = 40;
/// Takes some seconds. Without this limit, a chain of long links could take hours.
constexpr int maxStepsOfAllLinks = 2'000'000;
/// Larger than any file, and small enough that the sum does not overflow.
constexpr quint64 maxContent = quint64{1} << 40;

ZipError refusal(const ZipEntry& entry, const QString& reason)
{
    return ZipError(u"The archive entry “%1” %2."_s.arg(entry.shownName(), reason));
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

/// Pushes the parts of `first` onto the stack `rest`, so that the first part is on top.
void pushParts(std::vector<std::string>& rest, std::string_view first)
{
    const auto parts = partsOf(first);
    rest.insert(rest.end(), parts.rbegin(), parts.rend());
}

std::string folderOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

} // namespace

void ZipVetting::add(const ZipEntry& entry)
{
    if (entry.kind == ZipEntry::Kind::other)
        throw refusal(entry, u"is neither a file nor a folder nor a link"_s);
    if (entry.isEncrypted)
        throw refusal(entry, u"is encrypted"_s);
    if (!entry.hasKnownMethod)
        throw refusal(entry, u"is compressed in a way that is not supported"_s);
    if (entry.setsUserOrGroup)
        throw refusal(entry, u"would run with another user's rights"_s);
    const auto path = entryPath(entry).toStdString();
    if (path.empty() && entry.kind != ZipEntry::Kind::folder)
        throw refusal(entry, u"has no name"_s);
    if (entry.kind == ZipEntry::Kind::link &&
        (entry.target.isEmpty() || entry.target.size() > maxPathLength))
        throw refusal(entry, u"leads nowhere"_s);
    addSizes(entry);
    addFoldersAbove(entry, path);
    addPath(entry, path);
}

QByteArray ZipVetting::entryPath(const ZipEntry& entry)
{
    const auto& name = entry.name;
    if (name.isEmpty() || name.contains('\0'))
        throw refusal(entry, u"has no name"_s);
    if (name.size() > maxPathLength)
        throw refusal(entry, u"has too long a name"_s);
    if (name.startsWith('/'))
        throw refusal(entry, u"would lie outside the folder"_s);
    QByteArray path;
    qsizetype depth = 0;
    for (const auto part : partsOf({name.constData(), static_cast<std::size_t>(name.size())})) {
        const QByteArrayView view(part);
        if (part == "..")
            throw refusal(entry, u"would lie outside the folder"_s);
        if (view.size() > maxPartLength || ++depth > maxDepth)
            throw refusal(entry, u"has too long a name"_s);
        if (!path.isEmpty())
            path.append('/');
        path.append(view);
    }
    return path;
}

void ZipVetting::checkOverlap(qint64 archiveSize) const
{
    if (m_archivedSize > static_cast<quint64>(archiveSize))
        throw ZipError(u"The archive's entries overlap."_s);
}

void ZipVetting::addSizes(const ZipEntry& entry)
{
    // The minimum size of the two headers.
    constexpr quint64 headersSize = 30 + 46;
    m_archivedSize += headersSize + 2 * static_cast<quint64>(entry.name.size()) +
                      std::min(entry.compressedSize, maxContent);
    if (entry.kind != ZipEntry::Kind::file)
        return;
    // Saturates: no disk is that large.
    constexpr quint64 max = std::numeric_limits<qint64>::max();
    m_totalSize = entry.size > max - m_totalSize ? max : m_totalSize + entry.size;
}

void ZipVetting::addFoldersAbove(const ZipEntry& entry, const std::string& path)
{
    for (auto folder = folderOf(path); !folder.empty(); folder = folderOf(folder)) {
        const auto [known, isNew] = m_paths.try_emplace(folder);
        if (known->second.kind != ZipEntry::Kind::folder)
            throw refusal(entry, u"would lie below a file or a link"_s);
        if (!isNew)
            return;
        countPath(folder.size());
    }
}

void ZipVetting::countPath(std::size_t bytes)
{
    m_rememberedBytes += bytes;
    if (m_paths.size() > maxPaths || m_rememberedBytes > maxPathBytes)
        throw ZipError(u"The archive has too many files and folders."_s);
}

void ZipVetting::addPath(const ZipEntry& entry, const std::string& path)
{
    const auto [known, isNew] = m_paths.try_emplace(path);
    if (!isNew && (known->second.hasOwnEntry || entry.kind != ZipEntry::Kind::folder))
        throw refusal(entry, u"occurs twice"_s);
    known->second = {entry.kind, true, entry.target.toStdString()};
    countPath(path.size() + known->second.target.size());
}

void ZipVetting::checkLinks(const std::stop_token& stop) const
{
    auto stepsLeft = maxStepsOfAllLinks;
    for (const auto& [path, what] : m_paths) {
        if (what.kind == ZipEntry::Kind::link)
            checkLink(path, stepsLeft, stop);
    }
}

void ZipVetting::checkLink(const std::string& link, int& stepsLeft,
                           const std::stop_token& stop) const
{
    const auto refuse = [&link](const QString& reason) {
        ZipEntry entry;
        entry.name = QByteArray::fromStdString(link);
        throw refusal(entry, reason);
    };
    // Walks the path like the system, replacing each link by its target: after a link, ".." is not
    // the folder that contains the link.
    std::vector<std::string> rest{std::string(partsOf(link).back())};
    auto here = folderOf(link);
    int linksOnTheWay = 0;
    while (!rest.empty()) {
        throwIfCancelled(stop);
        if (--stepsLeft < 0)
            throw ZipError(u"The archive's links are too many to follow."_s);
        const auto part = std::move(rest.back());
        rest.pop_back();
        if (std::string_view(part) == "..") {
            if (here.empty())
                refuse(u"leads outside the folder"_s);
            here = folderOf(here);
            continue;
        }
        // Not one expression: GCC 12 warns of an uninitialised temporary.
        auto next = here;
        if (!next.empty())
            next += '/';
        next += part;
        // The system follows no longer path either.
        if (next.size() > static_cast<std::size_t>(maxPathLength))
            refuse(u"leads along too long a path"_s);
        const auto known = m_paths.find(next);
        if (known == m_paths.end() || known->second.kind != ZipEntry::Kind::link) {
            here = std::move(next);
            continue;
        }
        const auto& target = known->second.target;
        if (target.front() == '/')
            refuse(u"leads outside the folder"_s);
        if (++linksOnTheWay > maxLinkDepth)
            refuse(u"leads through too many links"_s);
        pushParts(rest, target);
    }
}
