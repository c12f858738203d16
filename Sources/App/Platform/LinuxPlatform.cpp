// SPDX-License-Identifier: MIT
#include "Platform/LinuxPlatform.h"

#include "AppError.h"
#include "Platform/HomeFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/// The files of one folder level, in plain string order of their paths.
std::optional<QString> engineProgramAmong(const QStringList& folders)
{
    QStringList programs;
    for (const auto& folder : folders) {
        const auto files =
            QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::NoSort);
        for (const auto& file : files) {
            if (file.fileName().toLower().contains(QLatin1String("godot")))
                programs.append(file.filePath());
        }
    }
    if (programs.isEmpty())
        return std::nullopt;
    return *std::ranges::min_element(programs);
}

QStringList foldersBelow(const QStringList& folders)
{
    QStringList below;
    for (const auto& folder : folders) {
        const auto entries = QDir(folder).entryInfoList(
            QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
        for (const auto& entry : entries)
            below.append(entry.filePath());
    }
    return below;
}

/// The folder name the engine makes of a project name (OS::get_safe_dir_name in its sources).
QString engineFolderName(QString projectName)
{
    projectName.replace(u'\\', u'/');
    projectName = projectName.trimmed();
    for (auto& character : projectName) {
        if (QStringView(u":*?\"<>|/").contains(character))
            character = u'-';
    }
    return projectName;
}

} // namespace

QString LinuxPlatform::applicationSupport()
{
    const auto dataHome = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    if (QDir::isAbsolutePath(dataHome))
        return QDir::cleanPath(dataHome);
    return homeFolder() + QStringLiteral("/.local/share");
}

QString LinuxPlatform::engineArchiveSuffix(bool mono, const QString& processor)
{
    // The C# archives are named with an underscore where the others have a dot.
    if (processor == QLatin1String("x86_64"))
        return mono ? QStringLiteral("mono_x11_64.zip") : QStringLiteral("x11.64.zip");
    if (processor == QLatin1String("i386"))
        return mono ? QStringLiteral("mono_x11_32.zip") : QStringLiteral("x11.32.zip");
    throw AppError(QCoreApplication::translate(
                       "LinuxPlatform", "The Godot 3 engine is not available for this computer's "
                                        "processor (%1).")
                       .arg(processor));
}

std::optional<QString> LinuxPlatform::findEngineProgram(const QString& engineFolder)
{
    // No release of the engine nests its program deeper than one folder; the bound only ends the
    // search in a folder that holds something else.
    constexpr int deepestLevel = 8;
    QStringList level{engineFolder};
    for (int depth = 0; depth <= deepestLevel && !level.isEmpty(); ++depth) {
        if (auto program = engineProgramAmong(level))
            return program;
        level = foldersBelow(level);
    }
    return std::nullopt;
}

std::optional<ToolCommand> LinuxPlatform::unpackCommand(const QString&, const QString&)
{
    return std::nullopt;
}

std::optional<ToolCommand> LinuxPlatform::clearQuarantineCommand(const QString&)
{
    return std::nullopt;
}

QString LinuxPlatform::savesFolder(const QString& gameName)
{
    return applicationSupport() + QStringLiteral("/godot/app_userdata/") +
           engineFolderName(gameName);
}
