// SPDX-License-Identifier: MIT
#pragma once

#include "Model/AppModel.h"
#include "Model/ProgressRelay.h"
#include "System/OffThread.h"

#include <QCoreApplication>

/// Puts a model into a state without living through it, for tests of what is shown then.
class AppModelAccess final
{
public:
    static void setPhase(AppModel& model, const Phase& phase)
    {
        model.m_phase = phase;
        Q_EMIT model.changed();
    }
    static void setStep(AppModel& model, const QString& text)
    {
        model.m_stepText = text;
        Q_EMIT model.changed();
    }
    static void setStillStarting(AppModel& model, bool stillStarting)
    {
        model.m_stillStarting = stillStarting;
        Q_EMIT model.changed();
    }
    static void setFailureText(AppModel& model, const std::optional<QString>& text)
    {
        model.m_failureText = text;
        Q_EMIT model.changed();
    }
    static void setInfo(AppModel& model, const std::optional<ProjectInfo>& info)
    {
        model.m_info = info;
        Q_EMIT model.changed();
    }
    static void setFacts(AppModel& model, const RepoFacts& facts)
    {
        model.m_facts = facts;
        Q_EMIT model.changed();
    }
    static void setInstalledSize(AppModel& model, const QString& size)
    {
        model.m_installedSize = size;
        Q_EMIT model.changed();
    }
    static void applyProgress(AppModel& model, const DownloadProgress& progress)
    {
        model.applyProgress(progress);
    }
    static void clearProgress(AppModel& model)
    {
        model.m_progress.reset();
        model.m_progressText.clear();
        Q_EMIT model.changed();
    }
    static void fail(AppModel& model, const QString& message) { model.fail(message); }
    static void applySize(AppModel& model, int measurement, qint64 bytes)
    {
        model.applySize(measurement, bytes);
    }
    /// Waits until every measurement so far has ended and been applied.
    static void finishMeasuring()
    {
        workerPool().waitForDone();
        QCoreApplication::processEvents();
    }
    /// What carries the progress of the download that is going on.
    static ProgressRelay& progressRelay(AppModel& model) { return *model.m_progressRelay; }
    static GameRunner& runner(AppModel& model) { return model.m_runner; }
};
