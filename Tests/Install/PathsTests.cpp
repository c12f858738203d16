// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/FileTree.h"
#include "Platform/HostPlatform.h"
#include "Platform/PlatformError.h"
#include "Support/InAnotherProcess.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
        QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));
    return expression;
}

TEST(Paths, lieUnderOneRootInTheApplicationSupportFolder)
{
    const auto root = HostPlatform::applicationSupport() + QStringLiteral("/Cavernyx Platformer");
    EXPECT_EQ(Paths::root(), root);
    EXPECT_EQ(Paths::game(), root + QStringLiteral("/Game"));
    EXPECT_EQ(Paths::engines(), root + QStringLiteral("/Engine"));
}

TEST(Paths, giveAFreshStagingFolderBesideItsTarget)
{
    const auto target = QStringLiteral("/some/Engine/3.5.3-stable-mono");
    const auto first = Paths::newStagingFolder(target);
    const auto prefix = target + QStringLiteral(".new-");
    ASSERT_TRUE(first.startsWith(prefix));
    EXPECT_TRUE(uuid().match(first.sliced(prefix.size())).hasMatch()) << first.toStdString();
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
        const auto prefix = QStringLiteral("CavernyxPlatformer-");
        ASSERT_TRUE(folder.fileName().startsWith(prefix));
        EXPECT_TRUE(uuid().match(folder.fileName().sliced(prefix.size())).hasMatch());
    }
}

TEST(Paths, ensureCreatesAFolderWithItsParentsAndLeavesAnExistingOneAlone)
{
    const TestFolder folder;
    const auto path = folder.path(QStringLiteral("a/größe/c"));
    Paths::ensure(path);
    EXPECT_TRUE(QFileInfo(path).isDir());
    folder.write(QStringLiteral("a/größe/c/file"), "kept");
    Paths::ensure(path);
    EXPECT_EQ(folder.read(QStringLiteral("a/größe/c/file")), "kept");
}

TEST(Paths, ensureThrowsBelowARegularFile)
{
    const TestFolder folder;
    folder.write(QStringLiteral("file"));
    const auto path = folder.path(QStringLiteral("file/folder"));
    try {
        Paths::ensure(path);
        FAIL() << "It was created.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  QStringLiteral("Could not create the folder “%1”: Not a directory.").arg(path));
    }
}

TEST(Paths, ensureThrowsWhereARegularFileIs)
{
    const TestFolder folder;
    EXPECT_THROW(Paths::ensure(folder.write(QStringLiteral("file"))), PlatformError);
}

TEST(PathsSize, isZeroForAFolderThatIsMissingOrEmpty)
{
    const TestFolder folder;
    EXPECT_EQ(Paths::size(folder.path(QStringLiteral("none"))), 0);
    folder.makeFolder(QStringLiteral("empty folder in it"));
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
        const auto name = QStringLiteral("%1/%2/file").arg(i % 20).arg(i);
        expected += allocated(folder.write(name, QByteArray(100 * i, 'x')));
    }
    EXPECT_EQ(Paths::size(folder.path()), expected);
}

TEST(PathsSize, countsBlocksAndNotTheLength)
{
    const TestFolder folder;
    const auto sparse = folder.write(QStringLiteral("sparse"));
    ASSERT_TRUE(QFile::resize(sparse, 100'000'000));
    EXPECT_EQ(Paths::size(folder.path()), allocated(sparse));
    EXPECT_LT(Paths::size(folder.path()), 1'000'000);
}

TEST(PathsSize, neitherFollowsNorCountsLinks)
{
    const TestFolder elsewhere;
    elsewhere.write(QStringLiteral("large"), QByteArray(1'000'000, 'x'));
    const TestFolder folder;
    const auto inside = folder.write(QStringLiteral("inside"), QByteArray(5'000, 'x'));
    ASSERT_TRUE(
        QFile::link(elsewhere.path(QStringLiteral("large")), folder.path(QStringLiteral("a"))));
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.path(QStringLiteral("b"))));
    ASSERT_TRUE(QFile::link(folder.path(), folder.path(QStringLiteral("loop"))));
    ASSERT_TRUE(QFile::link(inside, folder.path(QStringLiteral("c"))));
    EXPECT_EQ(Paths::size(folder.path()), allocated(inside));
}

TEST(PathsSize, doesNotCountAFile)
{
    const TestFolder folder;
    EXPECT_EQ(Paths::size(folder.write(QStringLiteral("file"), "x")), 0);
}

TEST(PathsSize, passesOverAFolderThatCannotBeRead)
{
    const TestFolder folder;
    folder.write(QStringLiteral("locked/file"), QByteArray(5'000, 'x'));
    const auto readable = folder.write(QStringLiteral("open/file"), QByteArray(5'000, 'x'));
    const auto expected = allocated(readable);
    const auto locked = QFile::encodeName(folder.path(QStringLiteral("locked")));
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
    folder.write(QStringLiteral("file"), QByteArray(5'000, 'x'));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(Paths::size(folder.path(), stop.get_token()), 0);
}

TEST(PathsSize, measuresATreeDeeperThanFoldersMayBeOpenAndPathsBeLong)
{
    const TestFolder folder;
    const auto deep = QFile::encodeName(folder.makeFolder(QStringLiteral("deep")));
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
    FileTree::remove(folder.path(QStringLiteral("deep")));
}

} // namespace
