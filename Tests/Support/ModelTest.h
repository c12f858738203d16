// SPDX-License-Identifier: MIT
#pragma once

#include "AppModel.h"
#include "Platform/SessionLock.h"
#include "Support/EnvironmentScope.h"
#include "Support/FakeDesktop.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <memory>

/// A model with a home of its own: data, settings and temporary files lie in a fresh folder, and
/// the spans of time that decide something are short.
class ModelTest : public testing::Test
{
protected:
    ModelTest();
    ~ModelTest() override;

    /// Creates the model anew, as a start of the program does.
    AppModel& startModel();
    AppModel& model() { return *m_model; }

    /// The storage root in the test's home.
    [[nodiscard]] QString root(const QString& relative = {}) const;

    /// Writes a game of the standard edition with one importable asset that is imported.
    void installGame(const QByteArray& projectExtra = {}) const;
    /// Writes an engine that is the shell script `body`; "$@" are its arguments.
    void installEngine(const QByteArray& body,
                       const QString& build = QStringLiteral("3.5.3-stable")) const;
    void writeMarker() const;

    /// Waits until the flow has ended; a test failure when it does not.
    void waitForFlow();
    /// Waits until the model has the phase; a test failure when it does not.
    void waitForPhase(Phase::Kind kind);
    /// Everything logged so far.
    [[nodiscard]] QStringList logged();

    /// The names left over in the temporary folder and the staging places.
    [[nodiscard]] QStringList leftovers() const;

    TestFolder home;
    FakeDesktop desktop;
    Durations durations;
    SessionLock session{home.path(QStringLiteral("session.lock"))};

private:
    void endModel();

    EnvironmentScope m_data;
    EnvironmentScope m_temporary;
    std::unique_ptr<AppModel> m_model;
};
