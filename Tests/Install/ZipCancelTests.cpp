// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

#include "Platform/Cancelled.h"
#include "Platform/FileTree.h"

#include <thread>

namespace {

class ZipCancelTest : public ZipExtractorTest
{
protected:
    /// Unpacks and requests the stop as soon as `name` is there. The unpacking may be through
    /// before this thread sees that; then it is tried again, so that a busy machine makes no
    /// difference. Whether an unpacking ended with Cancelled.
    bool isCancelledOnce(const QString& name, const ZipWriter& zip)
    {
        const auto bytes = zip.archive();
        for (int attempt = 0; attempt < 50; ++attempt) {
            FileTree::remove(folder.path(QStringLiteral("un packed")));
            stop = std::stop_source();
            std::jthread stopping([&](const std::stop_token& isOver) {
                while (!folder.exists(unpacked(name)) && !isOver.stop_requested())
                    std::this_thread::yield();
                stop.request_stop();
            });
            try {
                EXPECT_EQ(extract(bytes), 0);
            } catch (const Cancelled&) {
                return true;
            }
        }
        return false;
    }
};

} // namespace

TEST_F(ZipCancelTest, unpacksNothingWhenCancelledBeforehand)
{
    stop.request_stop();

    EXPECT_THROW(extract(ZipWriter().addFile("a", "x")), Cancelled);
    EXPECT_TRUE(folder.names(QStringLiteral("un packed")).isEmpty());
}

TEST_F(ZipCancelTest, endsInTheMiddleOfALargeFile)
{
    ZipWriter zip;
    zip.add({.name = "large", .data = QByteArray(24 * 1024 * 1024, 'x'), .deflated = true});

    EXPECT_TRUE(isCancelledOnce(QStringLiteral("large"), zip));
}

TEST_F(ZipCancelTest, endsBetweenFolders)
{
    ZipWriter zip;
    for (int i = 0; i < 5'000; ++i)
        zip.add({.name = QByteArray::number(i) + '/', .mode = S_IFDIR | 0755});

    EXPECT_TRUE(isCancelledOnce(QStringLiteral("0"), zip));
}

TEST_F(ZipCancelTest, endsBetweenLinks)
{
    ZipWriter zip;
    for (int i = 0; i < 5'000; ++i)
        zip.addLink(QByteArray::number(i), "nowhere");

    EXPECT_TRUE(isCancelledOnce(QStringLiteral("0"), zip));
}
