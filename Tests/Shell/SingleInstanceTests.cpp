// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include "Support/Await.h"
#include "Support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLocalSocket>
#include <QProcess>

#include <memory>
#include <vector>

namespace {

/// One start of the launcher, a process of its own.
class Start final
{
public:
    Start(const QString& lock, const QString& token, int patience = 20'000)
    {
        m_process.start(QStringLiteral(LAUNCHER_START), {lock, token, QString::number(patience)});
    }
    ~Start()
    {
        m_process.closeWriteChannel();
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
    bool waitForEnd()
    {
        return waitUntil([this] { return m_process.state() == QProcess::NotRunning; });
    }

private:
    QProcess m_process;
};

class SingleInstanceTest : public testing::Test
{
protected:
    const TestFolder m_folder;
    const QString m_lock = m_folder.path(QStringLiteral("lock"));
};

TEST_F(SingleInstanceTest, handsALaterStartOverToTheFirst)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    Start second(m_lock, QStringLiteral("the token"));
    EXPECT_EQ(second.nextLine(), "handed over");
    EXPECT_TRUE(second.waitForEnd());
    EXPECT_EQ(first.nextLine(), "activated the token");
    Start third(m_lock, {});
    EXPECT_EQ(third.nextLine(), "handed over");
    EXPECT_EQ(first.nextLine(), "activated");
}

TEST_F(SingleInstanceTest, letsOneOfSeveralStartsInTheSameInstantBeTheFirst)
{
    std::vector<std::unique_ptr<Start>> starts;
    for (int i = 0; i < 6; ++i)
        starts.push_back(std::make_unique<Start>(m_lock, QStringLiteral("token")));
    QList<QByteArray> outcomes;
    for (const auto& start : starts)
        outcomes.append(start->nextLine());
    EXPECT_EQ(outcomes.count("first"), 1);
    EXPECT_EQ(outcomes.count("handed over"), 5);
}

TEST_F(SingleInstanceTest, knowsInstallationsApart)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    Start other(m_folder.path(QStringLiteral("another lock")), {});
    EXPECT_EQ(other.nextLine(), "first");
}

TEST_F(SingleInstanceTest, knowsAnInstallationByEveryPathThatLeadsToIt)
{
    const auto folder = m_folder.makeFolder(QStringLiteral("folder"));
    const auto link = m_folder.path(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(folder, link));
    Start first(folder + QStringLiteral("/lock"), {});
    ASSERT_EQ(first.nextLine(), "first");
    Start second(link + QStringLiteral("/lock"), {}, 1000);
    EXPECT_EQ(second.nextLine(), "handed over");
}

TEST_F(SingleInstanceTest, isNotHeldUpByALauncherThatWasKilled)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    first.kill();
    ASSERT_TRUE(first.waitForEnd());
    Start second(m_lock, {});
    EXPECT_EQ(second.nextLine(), "first");
}

TEST_F(SingleInstanceTest, succeedsALauncherThatIsAboutToEnd)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    first.stopListening();
    Start second(m_lock, {});
    second.waitUntilItBegins();
    Start impatient(m_lock, {}, 300);
    ASSERT_EQ(impatient.nextLine(), "no answer");
    EXPECT_FALSE(second.hasLine()) << "It does not wait.";
    first.end();
    EXPECT_EQ(second.nextLine(), "first");
}

TEST_F(SingleInstanceTest, givesUpOnALauncherThatDoesNotAnswer)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    first.stopListening();
    Start second(m_lock, {}, 100);
    EXPECT_EQ(second.nextLine(), "no answer");
}

TEST_F(SingleInstanceTest, isNotImpressedByCallersThatSayNothingOrTooMuch)
{
    Start first(m_lock, {});
    ASSERT_EQ(first.nextLine(), "first");
    QLocalSocket silent;
    QLocalSocket talkative;
    for (auto* const caller : {&silent, &talkative}) {
        caller->setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        caller->connectToServer(SingleInstance::addressOf(m_lock));
        ASSERT_TRUE(caller->waitForConnected());
    }
    talkative.write(QByteArray(1'000'000, 'x'));
    talkative.flush();
    Start second(m_lock, QStringLiteral("token"));
    EXPECT_EQ(second.nextLine(), "handed over");
    EXPECT_EQ(first.nextLine(), "activated token");
}

} // namespace
