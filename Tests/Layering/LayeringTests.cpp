// SPDX-License-Identifier: MIT
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <ostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// Each folder and the folders right below it. A file may include files of its own folder, of the
/// folders below it, and of those below these.
const QMap<QString, QStringList> foldersBelow{
    {u"System"_s, {}},
    {u"Platform"_s, {u"System"_s}},
    {u"Project"_s, {u"Platform"_s}},
    {u"Process"_s, {u"Project"_s}},
    {u"Install/Zip"_s, {u"Process"_s}},
    {u"Install/Http"_s, {u"Process"_s}},
    {u"Install"_s, {u"Install/Zip"_s, u"Install/Http"_s}},
    {u"Model"_s, {u"Install"_s}},
    {u"Controls"_s, {u"Platform"_s}},
    {u"Views"_s, {u"Model"_s, u"Controls"_s}},
    {u"Shell"_s, {u"Views"_s}},
    {u"main.cpp"_s, {u"Shell"_s}},
};

/// Each source file, by its path below the source folder, and the project files it includes.
using Includes = QMap<QString, QStringList>;

Includes readIncludes(const QString& sources)
{
    static const QRegularExpression directive(u"^#include \"([^\"]+)\""_s,
                                              QRegularExpression::MultilineOption);
    Includes includes;
    QDirIterator files(sources, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto& included = includes[QDir(sources).relativeFilePath(file.fileName())];
        auto matches = directive.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            const auto path = matches.next().captured(1);
            if (!path.startsWith(u"moc_") && !path.endsWith(u".moc"))
                included.append(path);
        }
    }
    return includes;
}

QString folderOf(const QString& file)
{
    return file.contains(u'/') ? file.section(u'/', 0, -2) : file;
}

bool mayInclude(const QString& folder, const QString& included)
{
    const auto below = foldersBelow.value(folder);
    return folder == included || std::ranges::any_of(below, [&included](const QString& next) {
               return mayInclude(next, included);
           });
}

/// Every file in an unknown folder, and every include that points upwards or at nothing.
QStringList faults(const QString& sources)
{
    const auto includes = readIncludes(sources);
    QStringList found;
    for (auto file = includes.begin(); file != includes.end(); ++file) {
        if (!foldersBelow.contains(folderOf(file.key())))
            found.append(file.key() + u" has no place in the table"_s);
        for (const auto& included : file.value()) {
            if (!includes.contains(included) ||
                !mayInclude(folderOf(file.key()), folderOf(included)))
                found.append(file.key() + u" includes "_s + included);
        }
    }
    return found;
}

TEST(Layering, letsNoIncludePointUpwards)
{
    const auto sources = QStringLiteral(SOURCE_FOLDER);
    ASSERT_GT(readIncludes(sources).size(), 50);
    EXPECT_EQ(faults(sources), QStringList());
}

struct Arrow
{
    const char* name;
    const char* from;
    const char* to;
    bool isAllowed;
};

void PrintTo(const Arrow& arrow, std::ostream* stream)
{
    *stream << arrow.from << " to " << arrow.to;
}

class LayeringOfAnArrow : public testing::TestWithParam<Arrow>
{
};

TEST_P(LayeringOfAnArrow, isJudgedByTheTable)
{
    const TestFolder sources;
    sources.write(QString::fromUtf8(GetParam().to));
    sources.write(QString::fromUtf8(GetParam().from),
                  QByteArray("#include \"") + GetParam().to + "\"\n");
    EXPECT_EQ(faults(sources.path()).isEmpty(), GetParam().isAllowed);
}

INSTANTIATE_TEST_SUITE_P(
    Arrows, LayeringOfAnArrow,
    testing::Values(Arrow{"processToProject", "Process/A.cpp", "Project/B.h", true},
                    Arrow{"projectToProcess", "Project/A.cpp", "Process/B.h", false},
                    Arrow{"installToProcess", "Install/A.h", "Process/B.h", true},
                    Arrow{"processToInstall", "Process/A.h", "Install/B.h", false},
                    Arrow{"zipToInstall", "Install/Zip/A.h", "Install/B.h", false},
                    Arrow{"platformToProject", "Platform/A.h", "Project/B.h", false},
                    Arrow{"platformToSystem", "Platform/A.h", "System/B.h", true},
                    Arrow{"systemToModel", "System/A.h", "Model/B.h", false},
                    Arrow{"installToModel", "Install/A.h", "Model/B.h", false},
                    Arrow{"controlsToPlatform", "Controls/A.cpp", "Platform/B.h", true},
                    Arrow{"controlsToModel", "Controls/A.cpp", "Model/B.h", false},
                    Arrow{"controlsToViews", "Controls/A.cpp", "Views/B.h", false},
                    Arrow{"viewsToControls", "Views/A.cpp", "Controls/B.h", true},
                    Arrow{"viewsToModel", "Views/A.cpp", "Model/B.h", true},
                    Arrow{"viewsToShell", "Views/A.cpp", "Shell/B.h", false},
                    Arrow{"modelToShell", "Model/A.cpp", "Shell/B.h", false},
                    Arrow{"shellToViews", "Shell/A.cpp", "Views/A.h", true},
                    Arrow{"shellToMain", "Shell/A.cpp", "main.cpp", false}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(Layering, findsAnIncludeOfAFileThatIsNotThere)
{
    const TestFolder sources;
    sources.write(u"Process/A.cpp"_s, "#include \"Process/Gone.h\"\n");
    EXPECT_EQ(faults(sources.path()), QStringList{u"Process/A.cpp includes Process/Gone.h"_s});
}

TEST(Layering, findsAFileWithoutAPlaceInTheTable)
{
    const TestFolder sources;
    sources.write(u"Loose.h"_s);
    sources.write(u"Other/A.h"_s);
    EXPECT_EQ(faults(sources.path()), (QStringList{u"Loose.h has no place in the table"_s,
                                                   u"Other/A.h has no place in the table"_s}));
}

} // namespace
