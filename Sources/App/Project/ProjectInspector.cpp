// SPDX-License-Identifier: MIT
#include "Project/ProjectInspector.h"

#include "System/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The main thread waits for these searches, so their time is limited. Real games are far smaller.
constexpr std::size_t maxEntries = 10'000;
constexpr qsizetype maxSearchedFolders = 10'000;
constexpr qint64 maxFactBytes = qint64{4} * 1024 * 1024;

QString projectFile(const QString& folder)
{
    return folder + u"/project.godot"_s;
}

/// Returns the entries of `folder` in the file system's order.
std::vector<std::filesystem::directory_entry> entriesOf(const QString& folder)
{
    std::vector<std::filesystem::directory_entry> entries;
    std::error_code error;
    std::filesystem::directory_iterator next(QFile::encodeName(folder).toStdString(), error);
    for (; next != std::filesystem::directory_iterator() && entries.size() < maxEntries;
         next.increment(error))
        entries.push_back(*next);
    return entries;
}

QString nameOf(const std::filesystem::directory_entry& entry)
{
    return QFile::decodeName(entry.path().filename().c_str());
}

/// Returns the subfolders of `folder`, without hidden ones and links.
QStringList foldersIn(const QString& folder)
{
    QStringList paths;
    for (const auto& entry : entriesOf(folder)) {
        std::error_code error;
        const auto isFolder = !entry.is_symlink(error) && entry.is_directory(error);
        if (const auto name = nameOf(entry); isFolder && !name.startsWith(u'.'))
            paths.append(folder + u'/' + name);
    }
    return paths;
}

/// Returns every double-quoted string in `line`. There are no escapes.
QStringList quoted(QStringView line)
{
    const auto pieces = line.split(u'"');
    QStringList items;
    // Every second piece is inside quotes. The last piece has no closing quote.
    for (qsizetype i = 1; i + 1 < pieces.size(); i += 2)
        items.append(pieces.at(i).toString());
    return items;
}

/// Returns 0 for text that is not a decimal 64-bit number.
qint64 decimal(QStringView text)
{
    const auto digits = text.startsWith(u'+') || text.startsWith(u'-') ? text.sliced(1) : text;
    // toLongLong() ignores white space.
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    return std::ranges::all_of(digits, isDigit) ? text.toLongLong() : 0;
}

void readLine(QStringView line, ProjectInfo& info)
{
    const auto value = [line](QStringView prefix) { return line.sliced(prefix.size()); };
    constexpr QStringView version = u"config_version=";
    if (line.startsWith(version)) {
        info.configVersion = decimal(Text::trimmedBlanks(value(version)));
    } else if (line.startsWith(u"config/name=")) {
        if (const auto items = quoted(line); !items.isEmpty())
            info.name = items.first();
    } else if (line.startsWith(u"run/main_scene=")) {
        info.mainScene = quoted(line).value(0);
    } else if (line.startsWith(u"config/features=")) {
        info.features = quoted(line);
    }
}

bool usesCSharp(const ProjectInfo& info, const QString& text)
{
    if (info.features.contains(u"C#"_s) || text.contains(u"[mono]"))
        return true;
    return std::ranges::any_of(entriesOf(info.folder), [](const auto& entry) {
        const auto name = nameOf(entry);
        return name.endsWith(u".csproj") || name.endsWith(u".sln");
    });
}

void readLicense(const QString& text, RepoFacts& facts)
{
    QStringList lines;
    for (const auto line : QStringView(text).split(u'\n')) {
        if (const auto trimmed = Text::trimmedBlanks(line); !trimmed.isEmpty())
            lines.append(trimmed.toString());
    }
    if (lines.isEmpty())
        return;
    facts.license = lines.first();
    const auto copyright = std::ranges::find_if(lines, [](const QString& line) {
        return line.startsWith(u"copyright", Qt::CaseInsensitive);
    });
    if (copyright != lines.end())
        facts.author = *copyright;
}

void readReadme(const QString& text, RepoFacts& facts)
{
    constexpr QStringView keyword = u"#+DESCRIPTION:";
    for (const auto line : QStringView(text).split(u'\n')) {
        if (!line.startsWith(keyword, Qt::CaseInsensitive))
            continue;
        if (const auto summary = Text::trimmedBlanks(line.sliced(keyword.size()));
            !summary.isEmpty())
            facts.summary = summary.toString();
    }
}

/// Reads the facts of one folder. Subtracts the size of the files from `bytesLeft`, the limit.
void readFacts(const QString& folder, qint64& bytesLeft, RepoFacts& facts)
{
    const auto read = [&](const QString& name, auto readText) {
        const auto path = folder + u'/' + name;
        if (const auto text = Text::readFile(path, bytesLeft)) {
            bytesLeft -= QFileInfo(path).size();
            readText(*text, facts);
        }
    };
    for (const auto& entry : entriesOf(folder)) {
        const auto name = nameOf(entry);
        if (name.startsWith(u"license", Qt::CaseInsensitive))
            read(name, readLicense);
        if (name.startsWith(u"readme", Qt::CaseInsensitive))
            read(name, readReadme);
    }
}

} // namespace

std::optional<QString> ProjectInspector::findProject(const QString& root)
{
    constexpr int levelCount = 5;
    QStringList level{root};
    qsizetype searchedCount = 0;
    for (int depth = 0; depth < levelCount; ++depth) {
        QStringList next;
        for (const auto& folder : level) {
            if (++searchedCount > maxSearchedFolders)
                return std::nullopt;
            if (QFileInfo(projectFile(folder)).isFile())
                return folder;
            if (next.size() < maxSearchedFolders)
                next += foldersIn(folder);
        }
        level = next;
    }
    return std::nullopt;
}

std::optional<ProjectInfo> ProjectInspector::inspect(const QString& folder)
{
    const auto text = Text::readFile(projectFile(folder));
    if (!text)
        return std::nullopt;
    ProjectInfo info;
    info.folder = folder;
    for (const auto line : qTokenize(QStringView(*text), u'\n'))
        readLine(Text::trimmedBlanks(line), info);
    if (info.configVersion == 0)
        return std::nullopt;
    info.usesCSharp = usesCSharp(info, *text);
    return info;
}

RepoFacts ProjectInspector::facts(const QString& folder, const QString& stopFolder)
{
    constexpr int maxFolders = 6;
    const auto stop = QDir::cleanPath(stopFolder);
    auto current = QDir::cleanPath(folder);
    RepoFacts facts;
    auto bytesLeft = maxFactBytes;
    for (int count = 0; count < maxFolders; ++count) {
        readFacts(current, bytesLeft, facts);
        if (current == stop || current == u"/")
            break;
        current = QDir::cleanPath(current + u"/.."_s);
    }
    return facts;
}
