// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include <QSignalSpy>

#include <functional>
#include <ostream>

namespace {

struct Action
{
    const char* name;
    void (AppModel::*perform)();
};

std::ostream& operator<<(std::ostream& out, const Action& action)
{
    return out << action.name;
}

/// A question of an action that changes the installed game, with something happening meanwhile.
class QuestionOfMaintenance : public ModelTest, public testing::WithParamInterface<Action>
{
protected:
    QuestionOfMaintenance() { startReady("sleep 0.4"); }

    void acceptWhile(const std::function<void()>& meanwhile)
    {
        desktop.whileAsking = meanwhile;
        (model().*GetParam().perform)();
        EXPECT_EQ(desktop.questions.size(), 1);
    }
};

TEST_P(QuestionOfMaintenance, isAnsweredTooLateOnceTheProgramQuits)
{
    acceptWhile([this] { model().endForQuit(); });
    EXPECT_FALSE(model().isFlowRunning());
    EXPECT_TRUE(hasMarker());
    model().play();
    EXPECT_FALSE(model().isFlowRunning());
}

TEST_P(QuestionOfMaintenance, isAnsweredTooLateOnceTheGameIsStarted)
{
    const QSignalSpy ended(&model(), &AppModel::flowEnded);
    acceptWhile([this] { model().play(); });
    waitForFlow();
    EXPECT_EQ(ended.size(), 1);
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(logged().first(), u"Step 1 of 4 · Game already downloaded, skipping.");
    EXPECT_EQ(logged().last(), u"Game closed normally.");
    EXPECT_TRUE(hasMarker());
}

INSTANTIATE_TEST_SUITE_P(Every, QuestionOfMaintenance,
                         testing::Values(Action{"Update", &AppModel::updateGame},
                                         Action{"Reinstall", &AppModel::reinstall},
                                         Action{"Remove", &AppModel::removeEverything}));

} // namespace
