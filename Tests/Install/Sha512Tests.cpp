// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include "Platform/Cancelled.h"
#include "Platform/PlatformError.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

#include <csignal>
#include <stop_token>
#include <thread>

#include <sys/stat.h>

TEST(Sha512, ofAnEmptyFileIsThatOfTheEmptyString)
{
    const TestFolder folder;

    EXPECT_EQ(EngineManager::sha512(folder.write(QStringLiteral("empty"))),
              QStringLiteral("cf83e1357eefb8bdf1542850d66d8007d620e4050b5715dc83f4a921d36ce9ce"
                             "47d0d13c5d85f2b0ff8318d2877eec2f63b931bd47417a81a538327af927da3e"));
}

TEST(Sha512, isTheStandardOneOnEitherSideOfAPiece)
{
    const TestFolder folder;
    for (const auto size : {1, 3, 65'535, 65'536, 65'537, 4'194'304, 9'000'000}) {
        QByteArray bytes(size, 'a');
        bytes[size / 2] = 'b';

        const auto digest = EngineManager::sha512(folder.write(QStringLiteral("file"), bytes));

        EXPECT_EQ(digest.toLatin1(),
                  QCryptographicHash::hash(bytes, QCryptographicHash::Sha512).toHex())
            << size;
    }
}

TEST(Sha512, saysWhichFileCannotBeRead)
{
    const TestFolder folder;
    for (const auto& path : {folder.path(QStringLiteral("missing")), folder.path()}) {
        try {
            (void)EngineManager::sha512(path);
            ADD_FAILURE() << "It was read.";
        } catch (const PlatformError& error) {
            EXPECT_TRUE(error.message().contains(path)) << error.what();
        }
    }
}

TEST(Sha512, endsWithCancelledBeforehand)
{
    const TestFolder folder;
    const auto file = folder.write(QStringLiteral("file"), "x");
    std::stop_source stop;
    stop.request_stop();

    EXPECT_THROW((void)EngineManager::sha512(file, stop.get_token()), Cancelled);
}

TEST(Sha512, endsWithCancelledInTheMiddleOfAFile)
{
    // Of a pipe it is certain how much has been read when the stop is requested.
    const TestFolder folder;
    const auto pipe = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    std::stop_source stop;
    std::jthread writing([&] {
        const QByteArray large(1024 * 1024, 'x');
        QFile file(pipe);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        EXPECT_EQ(file.write(large), large.size());
        stop.request_stop();
        // Until the reader has gone; were it to read on, it would come to the end of these.
        for (int i = 0; i < 100 && file.write(large) == large.size(); ++i) {
        }
    });
    const auto handlerBefore = ::signal(SIGPIPE, SIG_IGN);

    EXPECT_THROW((void)EngineManager::sha512(pipe, stop.get_token()), Cancelled);

    writing.join();
    ::signal(SIGPIPE, handlerBefore);
}
