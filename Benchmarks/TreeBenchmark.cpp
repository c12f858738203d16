// SPDX-License-Identifier: MIT
// The two walks of the project tree: counting what is to be imported, against a bare loop that
// makes the same system calls, and measuring the allocated size.
#include "Install/Paths.h"
#include "Project/ImportChecker.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(contents);
}

/// A project of imported assets, a hundred to a folder, and half as many files again of others.
class Project final
{
public:
    explicit Project(int assetCount)
    {
        QDir root(m_folder.path());
        root.mkdir(QStringLiteral(".import"));
        for (int i = 0; i < assetCount; ++i) {
            const auto folder = QStringLiteral("folder%1").arg(i / 100);
            if (i % 100 == 0)
                root.mkdir(folder);
            const auto asset = QStringLiteral("%1/asset%2.png").arg(folder).arg(i);
            const auto converted =
                QStringLiteral(".import/asset%1.png-0123456789abcdef.stex").arg(i);
            write(root.filePath(asset), QByteArray(100, 'x'));
            write(root.filePath(asset + QStringLiteral(".import")),
                  "[remap]\n\nimporter=\"texture\"\ntype=\"StreamTexture\"\npath=\"res://" +
                      converted.toUtf8() + "\"\nmetadata={\n\"vram_texture\": false\n}\n\n" +
                      "[deps]\n\nsource_file=\"res://" + asset.toUtf8() + "\"\n\n[params]\n\n" +
                      QByteArray("compress/mode=0\n").repeated(20));
            write(root.filePath(converted), QByteArray(100, 'x'));
            if (i % 2 == 0)
                write(root.filePath(QStringLiteral("%1/scene%2.tscn").arg(folder).arg(i)), "[gd]");
        }
    }

    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

const Project& projectOf(int assetCount)
{
    static std::map<int, std::unique_ptr<Project>> projects;
    auto& project = projects[assetCount];
    if (!project)
        project = std::make_unique<Project>(assetCount);
    return *project;
}

/// The system calls of missingCount() and nothing else: no decoding, no splitting into lines.
void bareWalk(int project, int parent, const char* folder)
{
    const int descriptor = ::openat(parent, folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const listing = ::fdopendir(descriptor);
    std::vector<std::string> below;
    static std::array<char, 1 << 16> text;
    while (const auto* entry = ::readdir(listing)) {
        if (entry->d_name[0] == '.')
            continue;
        const auto length = std::strlen(entry->d_name);
        if (entry->d_type == DT_DIR)
            below.emplace_back(entry->d_name);
        if (length < 4 || std::strcmp(entry->d_name + length - 4, ".png") != 0)
            continue;
        std::array<char, 300> name;
        std::memcpy(name.data(), entry->d_name, length);
        std::memcpy(name.data() + length, ".import", sizeof ".import");
        const int record = ::openat(descriptor, name.data(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        struct stat status;
        ::fstat(record, &status);
        const auto size = ::read(record, text.data(), static_cast<std::size_t>(status.st_size));
        ::close(record);
        text[static_cast<std::size_t>(size)] = '\0';
        auto* const path = std::strstr(text.data(), "res://") + std::strlen("res://");
        *std::strchr(path, '"') = '\0';
        benchmark::DoNotOptimize(::faccessat(project, path, F_OK, 0));
    }
    for (const auto& name : below)
        bareWalk(project, descriptor, name.c_str());
    ::closedir(listing);
}

void bareLoop(benchmark::State& state)
{
    const auto path = QFile::encodeName(projectOf(static_cast<int>(state.range())).path());
    for (auto _ : state) {
        const int project = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        bareWalk(project, project, ".");
        ::close(project);
    }
}

void missingCount(benchmark::State& state)
{
    const auto path = projectOf(static_cast<int>(state.range())).path();
    for (auto _ : state) {
        if (ImportChecker::missingCount(path) != 0)
            state.SkipWithError("The project is not imported.");
    }
    state.SetComplexityN(state.range());
}

void pathsSize(benchmark::State& state)
{
    const auto path = projectOf(static_cast<int>(state.range())).path();
    for (auto _ : state)
        benchmark::DoNotOptimize(Paths::size(path));
}

BENCHMARK(bareLoop)->Arg(20'000)->Unit(benchmark::kMillisecond);
BENCHMARK(missingCount)
    ->Arg(20'000)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(200'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(pathsSize)->Arg(20'000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
