// SPDX-License-Identifier: MIT
#include "Support/MarkedLanguage.h"
#include "Support/ModelTest.h"

namespace {

class ModelTranslation : public ModelTest
{
protected:
    const MarkedLanguage m_language;
};

TEST_F(ModelTranslation, reachesTheFailureAndTheStepAndLeavesTheLogAsItIs)
{
    durations.startupThreshold = std::chrono::hours{1};
    startReady("exit 7").play();
    waitForFlow();
    const auto sentence = model().phase().message();
    EXPECT_TRUE(sentence.startsWith(u"<The game closed after "));
    EXPECT_TRUE(sentence.endsWith(u"(exit code 7), so it did not start properly.>"));
    EXPECT_EQ(model().stepText(), u"<Step 4 of 4 · Play>");
    EXPECT_EQ(logged().first(), u"Step 1 of 4 · Game already downloaded, skipping.");
    EXPECT_EQ(logged().last(), u"Error: "_s + sentence);
    EXPECT_EQ(*model().failureText(),
              u"<What happened: %1\n\nLast log lines:\n%2>"_s.arg(sentence, logged().join(u'\n')));
}

TEST_F(ModelTranslation, reachesTheStepsAndTheFailureOfASetup)
{
    QStringList steps;
    startReady("exit 3");
    ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s)));
    QObject::connect(&model(), &AppModel::changed, &model(),
                     [&] { steps.append(model().stepText()); });
    model().play();
    waitForFlow();
    EXPECT_TRUE(
        steps.contains(u"<Step 3 of 4 · First-time setup, this can take a minute or more>"_s));
    EXPECT_EQ(model().phase(),
              Phase::needs(u"<The first-time setup did not finish: 1 game assets were not "
                           "imported (engine exit code 3).>"_s));
}

TEST_F(ModelTranslation, reachesTheStepsOfTheDownloads)
{
    startModel().play(); // There is no server.
    waitForFlow();
    EXPECT_EQ(model().stepText(), u"<Step 1 of 4 · Downloading the game>");
    installGame();
    model().play();
    waitForFlow();
    EXPECT_EQ(model().stepText(),
              u"<Step 2 of 4 · Downloading the Godot engine (%1)>"_s.arg(EngineManager::version()));
}

TEST_F(ModelTranslation, reachesTheRefusalOfAGameThatCannotBePlayed)
{
    installGame("config_version=5\n");
    startModel().play();
    waitForFlow();
    EXPECT_EQ(model().phase().message(),
              u"<This game is made for Godot 4, but this app only knows how to install Godot 3.>");
    installGame("config_version=abc\n");
    model().play();
    waitForFlow();
    EXPECT_EQ(model().phase().message(), u"<The downloaded folder has no readable project.godot.>");
}

} // namespace
