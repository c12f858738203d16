// SPDX-License-Identifier: MIT
#include "Shell/SingleInstance.h"

#include "Support/Await.h"
#include "Support/TestFolder.h"
#include "System/LocalSocket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include <csignal>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// One start of the launcher, in a process of its own.
class Start final
{
public:
    explicit Start(const QString& lock, const QString& token = {}, int timeout = 20'000)
    {
        m_process.start(QStringLiteral(LAUNCHER_START), {lock, token, QString::number(timeout)});
    }
    ~Start()
    {
        end();
        EXPECT_TRUE(waitForEnd());
    }

    QByteArray nextLine()
    {
        waitUntil([this] { return m_process.canReadLine(); });
        return m_process.readLine().trimmed();
    }
    [[nodiscard]] bool hasLine() const { return m_process.canReadLine(); }
    void waitUntilItBegins()
    {
        waitUntil([this] { return !m_process.readAllStandardError().isEmpty(); });
    }
    void stopListening()
    {
        m_process.write("x");
        EXPECT_EQ(nextLine(), "deaf");
    }
    void end() { m_process.closeWriteChannel(); }
    void kill() { m_process.kill(); }
    void suspend() const
    {
        EXPECT_EQ(::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP), 0);
    }
    void resume() const
    {
        EXPECT_EQ(::kill(static_cast<pid_t>(m_process.processId()), SIGCONT), 0);
    }
    bool waitForEnd()
    {
        return waitUntil([this] { return m_process.state() == QProcess::NotRunning; });
    }

private:
    QProcess m_process;
};

/// A first launcher that listens.
class SingleInstanceTest : public testing::Test
{
protected:
    SingleInstanceTest() { EXPECT_EQ(first.nextLine(), "first"); }

    const TestFolder folder;
    const QString lock = folder.makeFolder(u"folder"_s) + u"/lock"_s;
    Start first{lock};
};

TEST_F(SingleInstanceTest, handsALaterStartOverToTheFirst)
{
    Start second(lock, u"the token"_s);
    EXPECT_EQ(second.nextLine(), "handed over");
    EXPECT_TRUE(second.waitForEnd());
    EXPECT_EQ(first.nextLine(), "activated the token");
    Start third(lock);
    EXPECT_EQ(third.nextLine(), "handed over");
    EXPECT_EQ(first.nextLine(), "activated");
}

TEST_F(SingleInstanceTest, letsOneOfSeveralStartsAtTheSameTimeBeTheFirst)
{
    std::vector<std::unique_ptr<Start>> starts;
    for (int i = 0; i < 6; ++i)
        starts.push_back(std::make_unique<Start>(folder.path(u"another lock"_s), u"token"_s));
    QList<QByteArray> outcomes;
    for (const auto& start : starts)
        outcomes.append(start->nextLine());
    EXPECT_EQ(outcomes.count("first"), 1) << "the launcher of another installation does not count";
    EXPECT_EQ(outcomes.count("handed over"), 5);
}

TEST_F(SingleInstanceTest, knowsAnInstallationByEveryPathThatLeadsToIt)
{
    const auto link = folder.path(u"link"_s);
    ASSERT_TRUE(QFile::link(folder.path(u"folder"_s), link));
    Start second(link + u"/lock"_s);
    EXPECT_EQ(second.nextLine(), "handed over");
}

TEST_F(SingleInstanceTest, isNotBlockedByAKilledLauncher)
{
    first.kill();
    ASSERT_TRUE(first.waitForEnd());
    Start second(lock);
    EXPECT_EQ(second.nextLine(), "first");
}

TEST_F(SingleInstanceTest, waitsForALauncherThatIsAboutToEndAndTakesItsPlace)
{
    first.stopListening();
    Start second(lock);
    second.waitUntilItBegins();
    Start impatient(lock, {}, 300);
    ASSERT_EQ(impatient.nextLine(), "no answer");
    EXPECT_FALSE(second.hasLine()) << "It does not wait.";
    first.end();
    EXPECT_EQ(second.nextLine(), "first");
}

TEST_F(SingleInstanceTest, handsOverAlsoWhenSomebodyHasRemovedTheLock)
{
    ASSERT_TRUE(QFile::remove(lock));
    Start second(lock);
    EXPECT_EQ(second.nextLine(), "handed over");
    EXPECT_TRUE(second.waitForEnd());
    EXPECT_FALSE(QFile::exists(lock)) << "The first could not take it again.";
}

TEST_F(SingleInstanceTest, handsOverAlsoWhereNoLockCanBeMade)
{
    const auto noFile = folder.makeFolder(u"no file"_s);
    Start only(noFile);
    EXPECT_EQ(only.nextLine(), "first");
    Start second(noFile);
    EXPECT_EQ(second.nextLine(), "handed over");
}

TEST_F(SingleInstanceTest, givesUpALauncherThatDoesNotAnswerInTime)
{
    first.suspend();
    Start patient(lock);
    patient.waitUntilItBegins();
    Start impatient(lock, {}, 300);
    EXPECT_EQ(impatient.nextLine(), "no answer");
    EXPECT_FALSE(patient.hasLine()) << "It does not wait.";
    first.resume();
}

TEST_F(SingleInstanceTest, ignoresCallersThatSendNothingOrTooMuch)
{
    const auto name = SingleInstance::serverName(lock);
    const auto silent = LocalSocket::connect(name);
    const auto talkative = LocalSocket::connect(name);
    ASSERT_TRUE(silent.isOpen() && talkative.isOpen());
    LocalSocket::send(talkative, QByteArray(1'000'000, 'x'));
    {
        const auto shortLived = LocalSocket::connect(name);
        LocalSocket::send(shortLived, "no line");
    }
    Start second(lock, u"token"_s);
    EXPECT_EQ(second.nextLine(), "handed over");
    EXPECT_EQ(first.nextLine(), "activated token");
}

} // namespace
