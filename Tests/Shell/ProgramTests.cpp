// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

TEST(Program, endsWithASentenceWhereItMayOpenTooFewFiles)
{
    const TestFolder home;
    QProcess program;
    // Without a display, so that it ends in any case.
    program.start(u"/usr/bin/env"_s, {u"-i"_s, u"HOME="_s + home.path(), u"/bin/sh"_s, u"-c"_s,
                                      u"ulimit -n 63; exec \"$0\""_s, QStringLiteral(PROGRAM)});
    ASSERT_TRUE(waitUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardError(),
              "Cavernyx Platformer needs to open 64 files at a time, and the limit (ulimit -n) is "
              "lower.\n");
    EXPECT_EQ(home.names(), QStringList());
}

} // namespace
