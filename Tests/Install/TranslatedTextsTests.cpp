// SPDX-License-Identifier: MIT
#include "Install/DownloadProgress.h"
#include "Install/RepoDownloader.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/MarkedLanguage.h"
#include "System/ByteCount.h"
#include "System/Errors.h"
#include "System/FileTree.h"

using namespace Qt::StringLiterals;

namespace {

class TranslatedTexts : public InstallTest
{
protected:
    const MarkedLanguage m_language;
};

TEST_F(TranslatedTexts, areAmountsAndProgress)
{
    EXPECT_EQ(formattedByteCount(0), u"<Zero KB>"_s);
    EXPECT_EQ(formattedByteCount(1), u"<1 byte>"_s);
    EXPECT_EQ(formattedByteCount(512), u"<512 bytes>"_s);
    EXPECT_EQ(formattedByteCount(7'300'000), u"<7.3 MB>"_s);
    const DownloadProgress progress{.received = 1, .total = 2'000, .bytesPerSecond = 3'000};
    EXPECT_EQ(progress.text(), u"<<1 byte> of <2 KB> · <<3 KB>/s>>"_s);
}

TEST_F(TranslatedTexts, areFailuresOfTheSystem)
{
    const auto path = home.write(u"a %1 file"_s);
    try {
        FileTree::replace(path + u"/Game"_s, home.makeFolder(u"new"_s), path + u"/old"_s);
        FAIL() << "It succeeded.";
    } catch (const PlatformError& error) {
        EXPECT_TRUE(error.message().startsWith(u"<<Could not exchange “"_s)) << error.message();
        EXPECT_TRUE(error.message().contains(u"a %1 file/Game”>: <"_s)) << error.message();
    }
}

TEST_F(TranslatedTexts, areFailuresOfAnInstallationButNotItsLog)
{
    const auto outcome = eventually(RepoDownloader::fetch(downloader, log(), stop.get_token()));
    EXPECT_TRUE(outcome.sentence.startsWith(u"<The server answered with HTTP 404"_s))
        << outcome.sentence;
    EXPECT_TRUE(outcome.sentence.endsWith(u".>"_s));
    EXPECT_EQ(lines(), QStringList{u"Downloading the game source from GitHub (branch master)…"_s});
}

} // namespace
