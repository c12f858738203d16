// SPDX-License-Identifier: MIT
#include "Platform/LinuxPlatform.h"

#include "Platform/Platform.h"
#include "System/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Returns the folder in the environment variable, else `fallback` in the home folder.
QString userFolder(const char* variable, const QString& fallback)
{
    const auto folder = absoluteFolder(qgetenv(variable));
    return folder ? *folder : homeFolder() + fallback;
}

/// Returns the engine program in `folders`; the first in string order if there are several.
std::optional<QString> engineProgramIn(const QStringList& folders)
{
    QStringList programs;
    for (const auto& folder : folders) {
        const auto files =
            QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::NoSort);
        for (const auto& file : files) {
            if (file.fileName().toLower().contains("godot"_L1))
                programs.append(file.filePath());
        }
    }
    if (programs.isEmpty())
        return std::nullopt;
    return *std::ranges::min_element(programs);
}

QStringList subfoldersOf(const QStringList& folders)
{
    QStringList subfolders;
    for (const auto& folder : folders) {
        const auto entries = QDir(folder).entryInfoList(
            QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
        for (const auto& entry : entries)
            subfolders.append(entry.filePath());
    }
    return subfolders;
}

/// Returns the folder name for a project, like Godot's OS::get_safe_dir_name.
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

LinuxPlatform::LinuxPlatform(QString processor)
    : m_processor(std::move(processor))
{
}

QString LinuxPlatform::applicationSupport() const
{
    return userFolder("XDG_DATA_HOME", u"/.local/share"_s);
}

QString LinuxPlatform::configuration() const
{
    return userFolder("XDG_CONFIG_HOME", u"/.config"_s);
}

QString LinuxPlatform::engineArchiveSuffix(bool mono) const
{
    // The C# archives are named with an underscore where the others have a dot.
    if (m_processor == "x86_64"_L1)
        return mono ? u"mono_x11_64.zip"_s : u"x11.64.zip"_s;
    if (m_processor == "i386"_L1)
        return mono ? u"mono_x11_32.zip"_s : u"x11.32.zip"_s;
    //: %1 is a kind of processor, such as "arm64".
    throw AppError(AppError::tr("The Godot 3 engine is not available for this computer's "
                                "processor (%1).")
                       .arg(m_processor));
}

std::optional<QString> LinuxPlatform::findEngineProgram(const QString& engineFolder) const
{
    // The engine's releases have one level at most. The limit bounds the search in other folders.
    constexpr int maxLevel = 8;
    QStringList level{engineFolder};
    for (int depth = 0; depth <= maxLevel && !level.isEmpty(); ++depth) {
        if (auto program = engineProgramIn(level))
            return program;
        level = subfoldersOf(level);
    }
    return std::nullopt;
}

QString LinuxPlatform::translationsFolder(const QString& programFolder, const QString& name) const
{
    return u"%1/../share/%2/translations"_s.arg(programFolder, name);
}

QString LinuxPlatform::savesFolder(const QString& gameName) const
{
    return applicationSupport() + u"/godot/app_userdata/"_s + engineFolderName(gameName);
}
