// SPDX-License-Identifier: MIT
#pragma once

#include "Install/DownloadProgress.h"
#include "Model/Phase.h"
#include "Process/GameRunner.h"
#include "Process/LogStore.h"
#include "Process/ResolutionChoice.h"
#include "Project/ProjectInfo.h"
#include "System/Durations.h"

#include <QCoroTask>
#include <QFuture>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <stop_token>

#include <sys/types.h>

class Desktop;
class FileDownloader;
class PlayOutcome;
class ProgressRelay;
class InstallationLock;

/// The launcher's state, and all actions of the player.
///
/// It publishes everything that the window shows and emits changed() after each change. It derives
/// its phase from the files on disk, and is the only layer that turns errors into state. Everything
/// here runs on the main thread and blocks it only for short reads and writes of files.
///
/// Play and the maintenance actions start a flow. One flow runs at a time.
///
/// ARCHITECTURE.md says which of the five source files holds what.
class AppModel final : public QObject
{
    Q_OBJECT

public:
    /// Returns the program's model, created on first use. It exists until the program ends. Defined
    /// in Shell/; tests construct their own model.
    static AppModel& shared();

    /// Reads the settings and calls refreshState(). `desktop` and `lock` must outlive the model.
    AppModel(Desktop& desktop, InstallationLock& lock, const Durations& durations = {});
    /// No flow may be running.
    ~AppModel() override;

    [[nodiscard]] const Phase& phase() const { return m_phase; }
    /// The current setup step, e.g. "Step 1 of 4 · Downloading the game".
    [[nodiscard]] const QString& stepText() const { return m_stepText; }
    /// The fraction of the current download, 0 to 1; nothing if the size is unknown.
    [[nodiscard]] std::optional<double> progress() const { return m_progress; }
    /// The amounts and the rate of the current download; else empty.
    [[nodiscard]] const QString& progressText() const { return m_progressText; }
    /// The last failure with the last log lines.
    [[nodiscard]] const std::optional<QString>& failureText() const { return m_failureText; }
    [[nodiscard]] const std::optional<ProjectInfo>& info() const { return m_info; }
    [[nodiscard]] const RepoFacts& facts() const { return m_facts; }
    [[nodiscard]] bool showLog() const { return m_showLog; }
    /// True from the start of the game until the startup threshold has passed.
    [[nodiscard]] bool stillStarting() const { return m_stillStarting; }
    /// The formatted size of the installation; empty if it is unknown or nothing is installed.
    [[nodiscard]] const QString& installedSize() const { return m_installedSize; }
    [[nodiscard]] bool fullscreen() const { return m_fullscreen; }
    [[nodiscard]] ResolutionChoice resolution() const { return m_resolution; }
    /// The phase as a title, and as a sentence.
    [[nodiscard]] QString statusTitle() const;
    [[nodiscard]] QString statusDetail() const;

    /// The log of setup and play. The same object for the life of the model.
    [[nodiscard]] LogStore& log() { return m_log; }

    void setShowLog(bool show);
    /// Stores the value, even if it is unchanged, for the next start of the game. Logs a failure to
    /// store it.
    void setFullscreen(bool fullscreen);
    void setResolution(ResolutionChoice resolution);

    /// Returns true if Play and the maintenance actions are refused: in a busy phase, while a flow
    /// runs, and after endForQuit().
    [[nodiscard]] bool isBusy() const { return m_phase.isBusy() || isFlowRunning() || m_quitting; }
    /// Returns true until the flow, and everything that it started, has ended.
    [[nodiscard]] bool isFlowRunning() const { return m_flowRunning; }

    /// Starts the setup flow, which skips completed steps and then runs the game. Returns at once.
    /// Does nothing while busy.
    void play();
    /// Cancels the flow. Returns at once; flowEnded() follows.
    void cancelSetup();
    /// Stops the running game; that is not a failure. Returns at once; flowEnded() follows.
    void stopGame();

    /// Each asks the player for confirmation, then starts a flow. Does nothing while busy.
    /// updateGame() and reinstall() start the game at the end.
    void updateGame();
    void reinstall();
    void removeEverything();

    /// Returns the folder with the game's saves, if it exists.
    [[nodiscard]] std::optional<QString> savesFolder() const;
    void showSaves();
    /// Shows the installation folder in the file browser of any platform.
    void revealInFinder();
    void copyFailure();
    void copyLog();

    /// Asks the player for confirmation if the game runs. Returns false if the player declines;
    /// else calls endForQuit() and returns true.
    bool confirmQuit();
    /// Stops the game or cancels the flow, without confirmation. Afterwards no new flow starts. The
    /// caller waits for flowEnded() while isFlowRunning().
    void endForQuit();

    /// Derives info, facts and phase from the files on disk, and clears the progress.
    void refreshState();
    /// Measures the installed size in the background.
    void updateSize();

Q_SIGNALS:
    /// A published property has changed.
    void changed();
    /// A flow, and everything that it started, has ended.
    void flowEnded();

private:
    // State.
    Phase phaseOnDisk();
    void store(const QString& key, const QString& value);
    void applySize(int measurement, qint64 bytes);
    std::shared_ptr<const FileDownloader> makeDownloader();
    void applyProgress(const DownloadProgress& progress);
    void clearProgress();
    void enter(const Phase& phase, const QString& stepText);
    void markStarted();

    // Flows.
    using Flow = QCoro::Task<> (AppModel::*)(std::stop_token);
    bool failIfGameRuns();
    bool failIfNotOwner();
    void ensureOwner();
    void startFlow(Flow flow);
    QCoro::Task<> runFlow(Flow flow, std::stop_token stop);
    void concludeCancelled();
    void concludeFailed(const QString& description);
    void fail(const QString& message);

    // Setup.
    QCoro::Task<> setUpAndPlay(std::stop_token stop);
    QCoro::Task<> finishReplacements(std::stop_token stop);
    QCoro::Task<QString> getGame(std::stop_token stop);
    QCoro::Task<ProjectInfo> readProject(QString project);
    void useProject(const std::optional<ProjectInfo>& info, const RepoFacts& facts);
    QCoro::Task<QString> getEngine(ProjectInfo info, std::stop_token stop);
    QCoro::Task<> importAssets(QString engine, ProjectInfo info, std::stop_token stop);

    // Launch.
    QCoro::Task<> launch(QString engine, QString project);
    QCoro::Task<int> runGame(QString engine, QStringList arguments);
    void concludePlay(const PlayOutcome& outcome);

    // Maintenance.
    bool askToChange(const QString& title, const QString& message, const QString& button);
    QCoro::Task<> deleteAndSetUp(std::stop_token stop);
    QCoro::Task<> deleteEverything(std::stop_token stop);
    void clearStaleFolders();
    QCoro::Task<> waitForDeletion();
    void removeRoot();
    void concludeRemoval(const QString& failure);

    Desktop& m_desktop;
    InstallationLock& m_lock;
    const Durations m_durations;

    Phase m_phase = Phase::notDownloaded();
    QString m_stepText;
    std::optional<double> m_progress;
    QString m_progressText;
    std::optional<QString> m_failureText;
    std::optional<ProjectInfo> m_info;
    RepoFacts m_facts;
    bool m_showLog = false;
    bool m_stillStarting = false;
    QString m_installedSize;
    bool m_fullscreen = false;
    ResolutionChoice m_resolution = ResolutionChoice::gameDefault;

    LogStore m_log;
    GameRunner m_runner;
    std::unique_ptr<ProgressRelay> m_progressRelay;
    QCoro::Task<> m_flowTask;
    std::stop_source m_flowStop;
    bool m_flowRunning = false;
    bool m_userStopped = false;
    bool m_forceGameDownload = false;
    bool m_quitting = false;
    /// The device of the storage root, or of its nearest existing parent, when last checked.
    dev_t m_device = 0;

    /// Stops the measurements and deletions in the background.
    std::stop_source m_backgroundStop;
    /// The deletion in the background. Its result is the failure's sentence; empty for success.
    QFuture<QString> m_deletion = QtFuture::makeReadyFuture(QString());
    int m_sizesStarted = 0;
    int m_sizeShown = 0;
};
