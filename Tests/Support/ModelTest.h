// SPDX-License-Identifier: MIT
#pragma once

#include "Model/AppModel.h"
#include "Support/EnvironmentScope.h"
#include "Support/FakeDesktop.h"
#include "Support/TestFolder.h"
#include "System/InstallationLock.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

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
    void installEngine(const QByteArray& body, const QString& build = u"3.5.3-stable"_s) const;
    void writeMarker() const;

    /// Waits until the flow has ended; a test failure when it does not.
    void waitForFlow();
    /// Waits until the flow and the deletion that it has left to the background have ended.
    void waitForDeletion();
    /// Waits until the model has the phase; a test failure when it does not.
    void waitForPhase(Phase::Kind kind);
    /// Everything logged so far.
    [[nodiscard]] QStringList logged();

    /// The names in the temporary folder and the staging places.
    [[nodiscard]] QStringList stagingFolders() const;
    /// The same once all work in the background has ended.
    [[nodiscard]] QStringList leftovers() const;

    TestFolder home;
    FakeDesktop desktop;
    Durations durations;
    InstallationLock lock{home.path(u"lock.lock"_s)};

private:
    void endModel();

    EnvironmentScope m_data;
    EnvironmentScope m_configuration;
    EnvironmentScope m_temporary;
    std::unique_ptr<AppModel> m_model;
};
