// SPDX-License-Identifier: MIT
#pragma once

#include "Model/AppModel.h"
#include "Support/FakeDesktop.h"
#include "Support/InstallTest.h"

#include <memory>

/// A test with its own model, installation and settings, and with short time limits.
class ModelTest : public InstallTest
{
protected:
    ModelTest();
    ~ModelTest() override;

    /// Creates a new model, like a start of the program.
    AppModel& startModel();
    /// Installs everything, with `engine` as the engine's script, and creates a new model.
    AppModel& startReady(const QByteArray& engine = "exit 0");
    AppModel& model() { return *m_model; }

    /// Ends the current flow and brings the model into a phase: `downloading` waits for the server,
    /// `settingUp` and `playing` run the engine, and `needs` is a refused game.
    void enter(Phase::Kind kind);
    /// Enters `downloading` and waits until that much of the engine's archive is received.
    void enterDownload(qint64 received, qint64 total);

    /// Waits until the flow has ended. Fails the test on timeout.
    void waitForFlow();
    /// Waits until the flow and its deletion in the background have ended.
    void waitForDeletion();
    /// Waits until the model has the phase. Fails the test on timeout.
    void waitForPhase(Phase::Kind kind);
    /// All log lines so far.
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
