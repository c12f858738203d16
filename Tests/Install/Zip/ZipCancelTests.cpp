// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

#include "System/Errors.h"
#include "System/FileTree.h"

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
            FileTree::remove(folder.path(u"un packed"_s));
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
    EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty());
}

TEST_F(ZipCancelTest, endsInTheMiddleOfALargeFile)
{
    ZipWriter zip;
    zip.add({.name = "large", .data = QByteArray(24 * 1024 * 1024, 'x'), .deflated = true});

    EXPECT_TRUE(isCancelledOnce(u"large"_s, zip));
}

TEST_F(ZipCancelTest, endsBetweenFolders)
{
    ZipWriter zip;
    for (int i = 0; i < 5'000; ++i)
        zip.add({.name = QByteArray::number(i) + '/', .mode = S_IFDIR | 0755});

    EXPECT_TRUE(isCancelledOnce(u"0"_s, zip));
}

TEST_F(ZipCancelTest, endsBetweenLinks)
{
    ZipWriter zip;
    for (int i = 0; i < 5'000; ++i)
        zip.addLink(QByteArray::number(i), "nowhere");

    EXPECT_TRUE(isCancelledOnce(u"0"_s, zip));
}
