// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Project/ProjectInspector.h"
#include "System/Text.h"

#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whether the text is all of a line of the file but the blanks around it.
bool isLine(const QString& text, const QStringList& lines)
{
    return !text.isEmpty() && std::ranges::any_of(lines, [&text](const QString& line) {
        return Text::trimmedBlanks(line) == text;
    });
}

} // namespace

/// Each fact is a line of its file, without the keyword and the blanks around it, or the default.
/// The last summary counts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    const auto file = toByteArray(bytes, size);
    const auto defaults = RepoFacts();
    const auto factsOf = [](const QString& name, const QByteArray& contents) {
        const auto path = folder.filePath(name);
        writeFile(path, contents);
        const auto facts = ProjectInspector::facts(folder.path(), folder.path());
        require(QFile::remove(path));
        return facts;
    };
    const auto license = factsOf(u"LICENSE"_s, file);
    const auto readme = factsOf(u"README"_s, file);
    require(license.summary == defaults.summary);
    require(readme.license == defaults.license && readme.author == defaults.author);
    if (!file.isValidUtf8()) {
        require(license == defaults && readme == defaults);
        return 0;
    }
    const auto lines = QString::fromUtf8(file).split(u'\n');
    require(isLine(license.license, lines) || license == defaults);
    require(isLine(license.author, lines) || license.author == defaults.author);
    require(license.author == defaults.author ||
            license.author.startsWith(u"copyright", Qt::CaseInsensitive));
    require(std::ranges::any_of(lines,
                                [&readme](const QString& line) {
                                    return line.startsWith(u"#+") &&
                                           Text::trimmedBlanks(line).endsWith(readme.summary);
                                }) ||
            readme.summary == defaults.summary);
    require(factsOf(u"README"_s, file + "\n#+Description: last \t").summary == u"last");
    return 0;
}
