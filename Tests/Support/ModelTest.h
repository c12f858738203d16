// SPDX-License-Identifier: MIT
#pragma once

#include "Model/AppModel.h"
#include "Support/FakeDesktop.h"
#include "Support/InstallTest.h"

#include <memory>

/// A model with an installation and settings of its own. The spans of time that decide something
/// are short.
class ModelTest : public InstallTest
{
protected:
    ModelTest();
    ~ModelTest() override;

    /// Creates a new model, as a start of the program does.
    AppModel& startModel();
    /// The same with everything installed. `engine` is the engine's script.
    AppModel& startReady(const QByteArray& engine = "exit 0");
    AppModel& model() { return *m_model; }

    /// Brings the model into a phase as a player would. What runs before is ended. In
    /// `downloading` it waits for the engine's server, in `settingUp` and `playing` for the engine,
    /// and `needs` is a refused game.
    void enter(Phase::Kind kind);
    /// Enters `downloading` and waits until so much of the engine's archive has come.
    void enterDownload(qint64 received, qint64 total);

    /// Waits until the flow has ended; a test failure when it does not.
    void waitForFlow();
    /// Waits until the flow and the deletion that it has left to the background have ended.
    void waitForDeletion();
    /// Waits until the model has the phase; a test failure when it does not.
    void waitForPhase(Phase::Kind kind);
    /// Everything logged so far.
    [[nodiscard]] QStringList logged();

    FakeDesktop desktop;
    /// For the next model.
    Durations durations;

private:
    void endFlow();
    void endModel();

    EnvironmentScope m_configuration{"XDG_CONFIG_HOME", home.path(u"config"_s).toUtf8()};
    std::unique_ptr<AppModel> m_model;
};
