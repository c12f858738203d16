// SPDX-License-Identifier: MIT
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <ostream>
#include <string>

namespace {

/// Each source file, by its path below the source folder, and the project files it includes.
using Includes = QMap<QString, QStringList>;

Includes readIncludes(const QString& sources)
{
    static const QRegularExpression directive(QStringLiteral("^#include \"([^\"]+)\""),
                                              QRegularExpression::MultilineOption);
    Includes includes;
    QDirIterator files(sources, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
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

/// The layers from the lowest up. Each may use itself and those below it, so no circle of folders
/// can pass.
enum class Layer { leaf, project, process, install, model, views, shell };

/// What lies beside the folders is the model, or the shell where it uses the views.
Layer layerOf(const QString& file, const Includes& includes)
{
    static const QMap<QString, Layer> folders{{QStringLiteral("Platform"), Layer::leaf},
                                              {QStringLiteral("Project"), Layer::project},
                                              {QStringLiteral("Process"), Layer::process},
                                              {QStringLiteral("Install"), Layer::install},
                                              {QStringLiteral("Views"), Layer::views}};
    static const QStringList leaves{QStringLiteral("AppError.h"), QStringLiteral("Durations.h")};
    if (file.contains(u'/'))
        return folders.value(file.section(u'/', 0, 0), Layer::shell);
    if (leaves.contains(file))
        return Layer::leaf;
    if (file == QLatin1String("main.cpp"))
        return Layer::shell;
    // A header and its source are one: the source says what the header leaves out.
    const auto name = QFileInfo(file).baseName();
    const auto own =
        includes.value(name + QStringLiteral(".h")) + includes.value(name + QStringLiteral(".cpp"));
    const auto usesViews = std::ranges::any_of(
        own, [](const QString& included) { return included.startsWith(u"Views/"); });
    return usesViews ? Layer::shell : Layer::model;
}

/// Every include that points upwards or at nothing, as "<file> includes <file>".
QStringList faults(const QString& sources)
{
    const auto includes = readIncludes(sources);
    QStringList found;
    for (auto file = includes.begin(); file != includes.end(); ++file) {
        for (const auto& included : file.value()) {
            if (!includes.contains(included) ||
                layerOf(included, includes) > layerOf(file.key(), includes))
                found.append(file.key() + QStringLiteral(" includes ") + included);
        }
    }
    return found;
}

TEST(Layering, letsNoIncludePointUpwards)
{
    const auto sources = QStringLiteral(SOURCE_FOLDER);
    ASSERT_GT(readIncludes(sources).size(), 50);
    EXPECT_EQ(faults(sources).join(u'\n').toStdString(), "");
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

TEST_P(LayeringOfAnArrow, isJudgedByItsDirection)
{
    const TestFolder sources;
    sources.write(QString::fromUtf8(GetParam().to));
    sources.write(QStringLiteral("Views/Some.h"));
    sources.write(QStringLiteral("Shell.cpp"), "#include \"Views/Some.h\"\n");
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
                    Arrow{"platformToProject", "Platform/A.h", "Project/B.h", false},
                    Arrow{"platformToLeaf", "Platform/A.h", "AppError.h", true},
                    Arrow{"leafToModel", "Durations.h", "AppModel.h", false},
                    Arrow{"installToModel", "Install/A.h", "AppModel.h", false},
                    Arrow{"viewsToModel", "Views/A.cpp", "AppModel.h", true},
                    Arrow{"viewsToShell", "Views/A.cpp", "Shell.h", false},
                    Arrow{"modelToShell", "AppModel.cpp", "Shell.h", false},
                    Arrow{"shellToViews", "main.cpp", "Views/A.h", true}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(Layering, findsAnIncludeOfAFileThatIsNotThere)
{
    const TestFolder sources;
    sources.write(QStringLiteral("Process/A.cpp"), "#include \"Gone.h\"\n");
    EXPECT_EQ(faults(sources.path()), QStringList{QStringLiteral("Process/A.cpp includes Gone.h")});
}

} // namespace
