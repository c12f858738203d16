// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include "Support/TestFolder.h"
#include "System/Errors.h"
#include "System/InputFile.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

#include <chrono>
#include <stop_token>
#include <thread>

using namespace Qt::StringLiterals;

TEST(Sha512, ofAnEmptyFileIsThatOfTheEmptyString)
{
    const TestFolder folder;

    EXPECT_EQ(EngineManager::sha512(InputFile(folder.write(u"empty"_s))),
              u"cf83e1357eefb8bdf1542850d66d8007d620e4050b5715dc83f4a921d36ce9ce"
              "47d0d13c5d85f2b0ff8318d2877eec2f63b931bd47417a81a538327af927da3e"_s);
}

TEST(Sha512, isTheStandardOneOnEitherSideOfAPiece)
{
    const TestFolder folder;
    for (const auto size : {1, 3, 65'535, 65'536, 65'537, 4'194'304, 9'000'000}) {
        QByteArray bytes(size, 'a');
        bytes[size / 2] = 'b';

        const auto digest = EngineManager::sha512(InputFile(folder.write(u"file"_s, bytes)));

        EXPECT_EQ(digest.toLatin1(),
                  QCryptographicHash::hash(bytes, QCryptographicHash::Sha512).toHex())
            << size;
    }
}

TEST(Sha512, saysWhichFileCannotBeRead)
{
    const TestFolder folder;
    for (const auto& path : {folder.path(u"missing"_s), folder.path()}) {
        try {
            (void)EngineManager::sha512(InputFile(path));
            ADD_FAILURE() << "It was read.";
        } catch (const PlatformError& error) {
            EXPECT_TRUE(error.message().contains(path)) << error.what();
        }
    }
}

TEST(Sha512, endsWithCancelledBeforehand)
{
    const TestFolder folder;
    const auto file = folder.write(u"file"_s, "x");
    std::stop_source stop;
    stop.request_stop();

    EXPECT_THROW((void)EngineManager::sha512(InputFile(file), stop.get_token()), Cancelled);
}

TEST(Sha512, endsWithCancelledInTheMiddleOfAFile)
{
    // A file without content that takes hours to read.
    const TestFolder folder;
    QFile file(folder.write(u"file"_s));
    ASSERT_TRUE(file.resize(qint64{1} << 43));
    std::stop_source stop;
    const std::jthread canceller([&stop] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        stop.request_stop();
    });

    EXPECT_THROW((void)EngineManager::sha512(InputFile(file.fileName()), stop.get_token()),
                 Cancelled);
}
