// SPDX-License-Identifier: MIT
#include "Platform/ServiceThread.h"

#include "Support/Await.h"
#include "Support/ProcessState.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace {

TEST(ServiceThreadTest, letsAProgramEndByExitAndItsChildrenWithIt)
{
    QProcess program;
    program.start(QStringLiteral(EXITING_PROGRAM));
    ASSERT_TRUE(waitUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << program.readAllStandardError().data();
    EXPECT_EQ(program.exitCode(), 7);
    const auto child = program.readAllStandardOutput().trimmed().toLongLong();
    ASSERT_GT(child, 0);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(child); }));
}

} // namespace
