// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Install/Zip/ZipExtractor.h"
#include "System/InputFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using std::filesystem::path;

qsizetype entryCount(const path& folder)
{
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

void removeContents(const path& folder)
{
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        std::filesystem::remove_all(entry);
}

/// Whether the link leads into the folder, or to nothing.
bool staysInside(const path& link, const path& folder)
{
    std::error_code error;
    const auto target = std::filesystem::canonical(link, error);
    return error || std::ranges::mismatch(target, folder).in2 == folder.end();
}

/// Everything below the folder is a folder, a file, with the modes that these get, or a link that
/// stays inside.
void checkTree(const path& folder)
{
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        struct stat status = {};
        require(::lstat(entry.path().c_str(), &status) == 0);
        const auto mode = status.st_mode & 07777U;
        if (S_ISLNK(status.st_mode))
            require(staysInside(entry.path(), folder));
        else if (S_ISDIR(status.st_mode))
            require(mode == 0755);
        else
            require(S_ISREG(status.st_mode) && (mode == 0644 || mode == 0755));
    }
}

} // namespace

/// Whatever the archive, nothing appears outside of the folder, and an archive that is accepted
/// leaves nothing inside it that leads out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    ::umask(022);
    static const QTemporaryDir around;
    const auto folder = around.filePath(u"in/side"_s);
    const auto archive = around.filePath(u"archive"_s);
    require(QDir().mkpath(folder));
    removeContents(folder.toStdString());
    writeFile(archive, toByteArray(bytes, size));
    const auto status =
        ZipExtractor::extract(InputFile(archive), folder, [](const QString&) {}, {});
    require(entryCount(around.path().toStdString()) == 2);
    require(entryCount(around.filePath(u"in"_s).toStdString()) == 1);
    if (status == 0)
        checkTree(std::filesystem::canonical(folder.toStdString()));
    return 0;
}
