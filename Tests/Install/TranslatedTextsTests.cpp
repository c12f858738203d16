// SPDX-License-Identifier: MIT
#include "Install/DownloadProgress.h"
#include "Install/RepoDownloader.h"
#include "Platform/ByteCount.h"
#include "Platform/FileTree.h"
#include "Platform/PlatformError.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/MarkedLanguage.h"

namespace {

class TranslatedTexts : public InstallTest
{
protected:
    const MarkedLanguage m_language;
};

TEST_F(TranslatedTexts, areAmountsAndProgress)
{
    EXPECT_EQ(formattedByteCount(0), QStringLiteral("<Zero KB>"));
    EXPECT_EQ(formattedByteCount(1), QStringLiteral("<1 byte>"));
    EXPECT_EQ(formattedByteCount(512), QStringLiteral("<512 bytes>"));
    EXPECT_EQ(formattedByteCount(7'300'000), QStringLiteral("<7.3 MB>"));
    const DownloadProgress progress{.received = 1, .total = 2'000, .bytesPerSecond = 3'000};
    EXPECT_EQ(progress.text(), QStringLiteral("<<1 byte> of <2 KB> · <<3 KB>/s>>"));
}

TEST_F(TranslatedTexts, areFailuresOfTheSystem)
{
    const auto path = home.write(QStringLiteral("a %1 file"));
    try {
        FileTree::replace(path + QStringLiteral("/Game"), home.makeFolder(QStringLiteral("new")),
                          path + QStringLiteral("/old"));
        FAIL() << "It succeeded.";
    } catch (const PlatformError& error) {
        EXPECT_TRUE(error.message().startsWith(QStringLiteral("<Could not <exchange “")))
            << error.message().toStdString();
        EXPECT_TRUE(error.message().contains(QStringLiteral("a %1 file/Game”>: ")))
            << error.message().toStdString();
    }
}

TEST_F(TranslatedTexts, areFailuresOfAnInstallationButNotItsLog)
{
    const auto outcome = eventually(RepoDownloader::fetch(downloader, log(), stop.get_token()));
    EXPECT_TRUE(outcome.sentence.startsWith(QStringLiteral("<The server answered with HTTP 404")))
        << outcome.sentence.toStdString();
    EXPECT_TRUE(outcome.sentence.endsWith(QStringLiteral(".>")));
    EXPECT_EQ(lines(), QStringList{QStringLiteral(
                           "Downloading the game source from GitHub (branch master)…")});
}

} // namespace
