// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/Platform.h"
#include "Support/EnvironmentScope.h"
#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"
#include "System/Errors.h"
#include "System/FileTree.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

qint64 allocated(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0);
    return static_cast<qint64>(status.st_blocks) * 512;
}

const QRegularExpression& uuid()
{
    static const QRegularExpression expression(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"_s);
    return expression;
}

TEST(Paths, lieUnderOneRootInTheApplicationSupportFolder)
{
    const auto root = hostPlatform().applicationSupport() + u"/Cavernyx Platformer"_s;
    EXPECT_EQ(Paths::root(), root);
    EXPECT_EQ(Paths::game(), root + u"/Game"_s);
    EXPECT_EQ(Paths::engines(), root + u"/Engine"_s);
}

TEST(Paths, giveAFreshStagingFolderBesideItsTarget)
{
    const auto target = u"/some/Engine/a build"_s;
    const auto first = Paths::newStagingFolder(target);
    const auto prefix = target + u".new-"_s;
    ASSERT_TRUE(first.startsWith(prefix));
    EXPECT_TRUE(uuid().match(first.sliced(prefix.size())).hasMatch()) << first;
    EXPECT_NE(first, Paths::newStagingFolder(target));
}

TEST(Paths, giveTwoDifferentTemporaryFoldersThatExist)
{
    const auto first = Paths::newTempDir();
    const auto second = Paths::newTempDir();
    EXPECT_NE(first.path(), second.path());
    for (const auto& path : {first.path(), second.path()}) {
        const QFileInfo folder(path);
        EXPECT_TRUE(folder.isDir());
        EXPECT_EQ(folder.path(), QDir::tempPath());
        const auto prefix = u"CavernyxPlatformer-"_s;
        ASSERT_TRUE(folder.fileName().startsWith(prefix));
        EXPECT_TRUE(uuid().match(folder.fileName().sliced(prefix.size())).hasMatch());
    }
}

TEST(Paths, useTheSystemsTemporaryFolderWhereTheNamedOneIsOfNoUse)
{
    const TestFolder folder;
    for (const auto& named :
         {folder.path(u"missing"_s).toUtf8(), "relative"_ba, ":/"_ba, "/"_ba, "/."_ba, ""_ba}) {
        const EnvironmentScope temporary("TMPDIR", named);
        EXPECT_EQ(QFileInfo(Paths::newTempDir().path()).path(), u"/tmp")
            << QString::fromUtf8(named);
    }
    const EnvironmentScope temporary("TMPDIR", folder.path().toUtf8() + '/');
    EXPECT_EQ(QFileInfo(Paths::newTempDir().path()).path(), folder.path());
}

TEST(Paths, ensureCreatesAFolderWithItsParentsAndLeavesAnExistingOneAlone)
{
    const TestFolder folder;
    const auto path = folder.path(u"a/größe/c"_s);
    Paths::ensure(path);
    EXPECT_TRUE(QFileInfo(path).isDir());
    folder.write(u"a/größe/c/file"_s, "kept");
    Paths::ensure(path);
    EXPECT_EQ(folder.read(u"a/größe/c/file"_s), "kept");
}

TEST(Paths, ensureThrowsBelowARegularFile)
{
    const TestFolder folder;
    folder.write(u"file"_s);
    const auto path = folder.path(u"file/folder"_s);
    try {
        Paths::ensure(path);
        FAIL() << "It was created.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  u"Could not create the folder “%1”: Not a directory."_s.arg(path));
    }
}

TEST(Paths, ensureThrowsWhereARegularFileIs)
{
    const TestFolder folder;
    EXPECT_THROW(Paths::ensure(folder.write(u"file"_s)), PlatformError);
}

TEST(PathsSize, isZeroForAFolderThatIsMissingOrEmpty)
{
    const TestFolder folder;
    EXPECT_EQ(Paths::size(folder.path(u"none"_s)), 0);
    folder.makeFolder(u"empty folder in it"_s);
    EXPECT_EQ(Paths::size(folder.path()), 0);
}

TEST(PathsSize, isTheSpaceAllocatedForRegularFilesAtAnyDepth)
{
    const TestFolder folder;
    qint64 expected = 0;
    for (const auto* name : {"plain", ".hidden", ".hidden folder/file", "Godot.app/Contents/Godot",
                             "1/2/3/4/5/6/file", "größe €"}) {
        const auto path = folder.write(QString::fromUtf8(name), QByteArray(10'000, 'x'));
        expected += allocated(path);
    }
    EXPECT_GT(expected, 0);
    EXPECT_EQ(Paths::size(folder.path()), expected);
}

TEST(PathsSize, countsEveryFileOfAWideTreeOnce)
{
    const TestFolder folder;
    qint64 expected = 0;
    for (int i = 0; i < 200; ++i) {
        const auto name = u"%1/%2/file"_s.arg(i % 20).arg(i);
        expected += allocated(folder.write(name, QByteArray(100 * i, 'x')));
    }
    EXPECT_EQ(Paths::size(folder.path()), expected);
}

TEST(PathsSize, countsBlocksAndNotTheLength)
{
    const TestFolder folder;
    const auto sparse = folder.write(u"sparse"_s);
    ASSERT_TRUE(QFile::resize(sparse, 100'000'000));
    EXPECT_EQ(Paths::size(folder.path()), allocated(sparse));
    EXPECT_LT(Paths::size(folder.path()), 1'000'000);
}

TEST(PathsSize, neitherFollowsNorCountsLinks)
{
    const TestFolder elsewhere;
    elsewhere.write(u"large"_s, QByteArray(1'000'000, 'x'));
    const TestFolder folder;
    const auto inside = folder.write(u"inside"_s, QByteArray(5'000, 'x'));
    ASSERT_TRUE(QFile::link(elsewhere.path(u"large"_s), folder.path(u"a"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.path(u"b"_s)));
    ASSERT_TRUE(QFile::link(folder.path(), folder.path(u"loop"_s)));
    ASSERT_TRUE(QFile::link(inside, folder.path(u"c"_s)));
    EXPECT_EQ(Paths::size(folder.path()), allocated(inside));
}

TEST(PathsSize, doesNotCountAFile)
{
    const TestFolder folder;
    EXPECT_EQ(Paths::size(folder.write(u"file"_s, "x")), 0);
}

TEST(PathsSize, passesOverAFolderThatCannotBeRead)
{
    const TestFolder folder;
    folder.write(u"locked/file"_s, QByteArray(5'000, 'x'));
    const auto readable = folder.write(u"open/file"_s, QByteArray(5'000, 'x'));
    const auto expected = allocated(readable);
    const auto locked = QFile::encodeName(folder.path(u"locked"_s));
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(locked.constData(), 0), 0);
    // The administrator may read everything, so an ordinary user measures.
    const auto status = inAnotherProcess([&] {
        const auto isOrdinary = ::getuid() != 0 || ::setuid(65534) == 0;
        return isOrdinary && Paths::size(folder.path()) == expected ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    ::chmod(locked.constData(), 0755);
}

TEST(PathsSize, endsEarlyWhenItIsToStop)
{
    const TestFolder folder;
    folder.write(u"file"_s, QByteArray(5'000, 'x'));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(Paths::size(folder.path(), stop.get_token()), 0);
}

TEST(PathsSize, measuresATreeDeeperThanFoldersMayBeOpenAndPathsBeLong)
{
    const TestFolder folder;
    const auto deep = QFile::encodeName(folder.makeFolder(u"deep"_s));
    int here = ::open(deep.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < 1'500; ++level) {
        ASSERT_EQ(::mkdirat(here, "folder", 0755), 0);
        const int below = ::openat(here, "folder", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ASSERT_GE(below, 0);
        ::close(here);
        here = below;
    }
    const int file = ::openat(here, "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    const QByteArray contents(5'000, 'x');
    EXPECT_EQ(::write(file, contents.constData(), 5'000), 5'000);
    struct stat status = {};
    EXPECT_EQ(::fstat(file, &status), 0);
    const auto expected = status.st_blocks * 512;
    ::close(file);
    ::close(here);

    EXPECT_EQ(Paths::size(folder.path()), expected);

    // The library that removes the test's folder cannot name what lies so deep.
    FileTree::remove(folder.path(u"deep"_s));
}

} // namespace
