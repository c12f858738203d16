// SPDX-License-Identifier: MIT
#include "Platform/MacPlatform.h"

#include "Platform/HomeFolder.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isBundle(const QString& name)
{
    return QFileInfo(name).suffix() == QLatin1String("app");
}

std::optional<QString> programOfBundle(const QString& bundle)
{
    const QDir folder(bundle + QStringLiteral("/Contents/MacOS"));
    auto names = folder.entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    if (names.isEmpty())
        return std::nullopt;
    std::ranges::sort(names);
    const auto engine = std::ranges::find_if(
        names, [](const QString& name) { return name.toLower().contains(QLatin1String("godot")); });
    return folder.filePath(engine != names.end() ? *engine : names.first());
}

} // namespace

QString MacPlatform::applicationSupport()
{
    return homeFolder() + QStringLiteral("/Library/Application Support");
}

QString MacPlatform::engineArchiveSuffix(bool mono, const QString&)
{
    return mono ? QStringLiteral("mono_osx.universal.zip") : QStringLiteral("osx.universal.zip");
}

std::optional<QString> MacPlatform::findEngineProgram(const QString& engineFolder)
{
    const QDir folder(engineFolder);
    const auto entries = folder.entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const auto& entry : entries) {
        const auto program = isBundle(entry.fileName()) ? programOfBundle(entry.filePath())
                             : entry.isDir() && !entry.isSymLink()
                                 ? findEngineProgram(entry.filePath())
                                 : std::nullopt;
        if (program)
            return program;
    }
    return std::nullopt;
}

std::optional<ToolCommand> MacPlatform::unpackCommand(const QString& archive,
                                                      const QString& destination)
{
    return ToolCommand{QStringLiteral("/usr/bin/ditto"),
                       {QStringLiteral("-x"), QStringLiteral("-k"), archive, destination}};
}

std::optional<ToolCommand> MacPlatform::clearQuarantineCommand(const QString& folder)
{
    return ToolCommand{QStringLiteral("/usr/bin/xattr"),
                       {QStringLiteral("-dr"), QStringLiteral("com.apple.quarantine"), folder}};
}

QString MacPlatform::savesFolder(const QString& gameName)
{
    return applicationSupport() + QStringLiteral("/Godot/app_userdata/") + gameName;
}
