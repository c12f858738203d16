// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Project/ProjectInspector.h"

#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

/// A file is refused, or all that is said of it stands in it: the version in digits, and the texts
/// in double quotes. A comment at the end changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    const auto file = toByteArray(bytes, size);
    const auto inspect = [](const QByteArray& contents) {
        writeFile(folder.filePath(u"project.godot"_s), contents);
        return ProjectInspector::inspect(folder.path());
    };
    const auto info = inspect(file);
    require(inspect(file + "\n; config_version=1 \"x\"\n") == info);
    if (!info)
        return 0;
    require(file.isValidUtf8() && info->folder == folder.path());
    require(info->configVersion != 0 &&
            file.contains(QByteArray::number(info->configVersion).replace("-", "")));
    const auto isQuoted = [&file](const QString& text) {
        return !text.contains(u'"') && !text.contains(u'\n') &&
               file.contains('"' + text.toUtf8() + '"');
    };
    require(isQuoted(info->name) || info->name == ProjectInfo().name);
    require(isQuoted(info->mainScene) || info->mainScene.isEmpty());
    require(std::ranges::all_of(info->features, isQuoted));
    require(info->features.size() <= file.count('"') / 2);
    require(!info->usesCSharp || info->features.contains(u"C#"_s) || file.contains("[mono]"));
    return 0;
}
