// SPDX-License-Identifier: MIT
#include "Platform/MacPlatform.h"

#include "Platform/Platform.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isBundle(const QString& name)
{
    return QFileInfo(name).suffix() == "app"_L1;
}

std::optional<QString> programOfBundle(const QString& bundle)
{
    const QDir folder(bundle + u"/Contents/MacOS"_s);
    auto names = folder.entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    if (names.isEmpty())
        return std::nullopt;
    std::ranges::sort(names);
    const auto engine = std::ranges::find_if(
        names, [](const QString& name) { return name.toLower().contains("godot"_L1); });
    return folder.filePath(engine != names.end() ? *engine : names.first());
}

} // namespace

QString MacPlatform::applicationSupport() const
{
    return homeFolder() + u"/Library/Application Support"_s;
}

QString MacPlatform::configuration() const
{
    return homeFolder() + u"/Library/Preferences"_s;
}

QString MacPlatform::engineArchiveSuffix(bool mono) const
{
    return mono ? u"mono_osx.universal.zip"_s : u"osx.universal.zip"_s;
}

std::optional<QString> MacPlatform::findEngineProgram(const QString& engineFolder) const
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
                                                      const QString& destination) const
{
    return ToolCommand{u"/usr/bin/ditto"_s, {u"-x"_s, u"-k"_s, archive, destination}};
}

std::optional<ToolCommand> MacPlatform::clearQuarantineCommand(const QString& folder) const
{
    return ToolCommand{u"/usr/bin/xattr"_s, {u"-dr"_s, u"com.apple.quarantine"_s, folder}};
}

QString MacPlatform::translationsFolder(const QString& programFolder, const QString&) const
{
    return programFolder + u"/../Resources/translations"_s;
}

QString MacPlatform::savesFolder(const QString& gameName) const
{
    return applicationSupport() + u"/Godot/app_userdata/"_s + gameName;
}
