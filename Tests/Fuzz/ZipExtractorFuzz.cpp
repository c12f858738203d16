// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Install/Zip/ZipExtractor.h"
#include "Support/ZipWriter.h"
#include "System/InputFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// Whether everything below the folder is a file, a folder or a link that stays inside.
bool isHarmless(const QString& folder)
{
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const auto path = entries.next();
        struct stat status = {};
        if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
            continue;
        if (S_ISLNK(status.st_mode)) {
            const auto target = QFileInfo(path).canonicalFilePath();
            if (!target.isEmpty() && target != folder && !target.startsWith(folder + u'/'))
                return false;
        } else if ((!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) ||
                   (status.st_mode & (S_ISUID | S_ISGID)) != 0) {
            return false;
        }
    }
    return true;
}

} // namespace

QList<QByteArray> fuzzSeeds()
{
    ZipWriter plain;
    plain.addFile("a/b", "stored").add({.name = "c", .data = "deflated", .deflated = true});
    ZipWriter links;
    links.addLink("a/up", "../c").addFile("c", "x").addLink("d", "a/up");
    ZipWriter large;
    large.add({.name = "a", .data = "first", .zip64 = true}).addFile("../x").addFile("b");
    return {plain.archive(), links.archive(), large.archive()};
}

/// Whatever the archive, nothing appears outside of the folder, and an archive that is accepted
/// leaves nothing inside it that leads out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QTemporaryDir around;
    const auto folder = around.filePath(u"in/side"_s);
    QDir().mkpath(folder);
    QFile archive(around.filePath(u"archive"_s));
    if (!archive.open(QIODevice::WriteOnly))
        std::abort();
    archive.write(reinterpret_cast<const char*>(bytes), static_cast<qint64>(size));
    archive.close();
    const auto status =
        ZipExtractor::extract(InputFile(archive.fileName()), folder, [](const QString&) {}, {});
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (QDir(around.path()).entryList(all).size() != 2 ||
        QDir(around.filePath(u"in"_s)).entryList(all).size() != 1 ||
        (status == 0 && !isHarmless(QDir(folder).canonicalPath())))
        std::abort();
    return 0;
}
