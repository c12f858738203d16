// SPDX-License-Identifier: MIT
#include "Model/StoredSettings.h"

#include "Install/Paths.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/OutputFile.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QByteArray sectionLine = "[General]";

bool isSectionLine(const QByteArray& line)
{
    return line.trimmed().compare(sectionLine, Qt::CaseInsensitive) == 0;
}

/// Sets the last line of `key` in a [General] section, or before the first section. Adds a line if
/// there is none.
void setLine(QByteArrayList& lines, const QByteArray& key, const QByteArray& value)
{
    const auto newLine = key + '=' + value;
    auto isInSection = true;
    qsizetype sectionStart = -1;
    QByteArray* found = nullptr;
    for (qsizetype index = 0; index < lines.size(); ++index) {
        auto& line = lines[index];
        if (line.trimmed().startsWith('[')) {
            isInSection = isSectionLine(line);
            if (isInSection)
                sectionStart = index;
        } else if (isInSection && line.left(line.indexOf('=')).trimmed() == key) {
            found = &line;
        }
    }
    if (found) {
        *found = newLine;
        return;
    }
    if (sectionStart < 0)
        lines.prepend(sectionLine);
    lines.insert(std::max<qsizetype>(sectionStart, 0) + 1, newLine);
}

/// Returns the lines of the file at `path`; one empty line if it does not exist. Throws
/// PlatformError.
QByteArrayList readLines(const QString& path)
{
    const auto fail = [&path](const QString& reason) {
        return PlatformError::fromReason(PlatformError::tr("Could not change “%1”").arg(path),
                                         reason);
    };
    if (!FileTree::exists(path))
        return {QByteArray()};
    if (!QFileInfo(path).isFile())
        throw fail(PlatformError::tr("It is not a file."));
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const auto lines = file.readAll().split('\n');
    if (file.error() != QFileDevice::NoError)
        throw fail(file.errorString());
    return lines;
}

void replaceFile(const QString& path, const QByteArray& contents)
{
    const auto newPath = path + u".new"_s;
    QFile::remove(newPath); // A killed launcher may have left one.
    OutputFile file(newPath, 0600);
    const auto guard = qScopeGuard([&newPath] { QFile::remove(newPath); });
    file.write(contents);
    file.close();
    if (const auto error = FileTree::rename(newPath, path); error != 0)
        throw PlatformError::fromErrno(PlatformError::tr("Could not replace “%1”").arg(path),
                                       error);
}

} // namespace

QVariant StoredSettings::value(const QString& key)
{
    try {
        const auto path = Paths::settingsFile();
        if (QFileInfo(path).isFile())
            return QSettings(path, QSettings::IniFormat).value(key);
    } catch (const PlatformError&) {
        // There is no home folder, and so no file.
    }
    return {};
}

void StoredSettings::setValue(const QString& key, const QString& value)
{
    auto path = Paths::settingsFile();
    Paths::ensure(QFileInfo(path).path());
    // A symbolic link stays a link.
    if (const auto target = QFileInfo(path).canonicalFilePath(); !target.isEmpty())
        path = target;
    auto lines = readLines(path);
    setLine(lines, key.toUtf8(), value.toUtf8());
    replaceFile(path, lines.join('\n'));
}
