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

/// The launcher's state, and everything a player can do.
///
/// One object publishes all that the window shows and announces every change after it has
/// happened. Its phase is derived from what is on disk and moves only through the operations below;
/// it alone turns the errors of the layers under it into state. Everything runs on the main thread,
/// which nothing here blocks: downloads, child processes and walks of folders report back to it.
///
/// A press of Play or a housekeeping action that does not end at once is a flow. One flow runs at a
/// time.
///
/// Five source files: AppModel.cpp holds the state, AppModelFlow.cpp what all flows have in common,
/// AppModelSetup.cpp the four steps from nothing to the installed game, AppModelLaunch.cpp the
/// supervision of the game, AppModelMaintenance.cpp the housekeeping.
class AppModel final : public QObject
{
    Q_OBJECT

public:
    /// The program's one model, created on first use; it lives until the program ends. Defined by
    /// the shell, which owns the desktop. Tests construct their own.
    static AppModel& shared();

    /// Reads the stored settings and derives the state from the disk. `desktop` and `lock` must
    /// outlive the model.
    AppModel(Desktop& desktop, InstallationLock& lock, const Durations& durations = {});
    /// No flow may be running: see isFlowRunning().
    ~AppModel() override;

    [[nodiscard]] const Phase& phase() const { return m_phase; }
    /// The current setup step, e.g. "Step 1 of 4 · Downloading the game".
    [[nodiscard]] const QString& stepText() const { return m_stepText; }
    /// How far the current download is, 0 to 1; nothing when that is not known.
    [[nodiscard]] std::optional<double> progress() const { return m_progress; }
    /// The download's amounts and speed; empty outside downloads.
    [[nodiscard]] const QString& progressText() const { return m_progressText; }
    /// The long report of the last failure.
    [[nodiscard]] const std::optional<QString>& failureText() const { return m_failureText; }
    [[nodiscard]] const std::optional<ProjectInfo>& info() const { return m_info; }
    [[nodiscard]] const RepoFacts& facts() const { return m_facts; }
    [[nodiscard]] bool showLog() const { return m_showLog; }
    /// From the launch of the game until it has stayed open long enough to count as started.
    [[nodiscard]] bool stillStarting() const { return m_stillStarting; }
    /// The size of everything installed, in words; empty when nothing is, or not known.
    [[nodiscard]] const QString& installedSize() const { return m_installedSize; }
    [[nodiscard]] bool fullscreen() const { return m_fullscreen; }
    [[nodiscard]] ResolutionChoice resolution() const { return m_resolution; }
    /// The phase in a word or two, and in a sentence.
    [[nodiscard]] QString statusTitle() const;
    [[nodiscard]] QString statusDetail() const;

    /// The log of everything setup and play wrote; never replaced.
    [[nodiscard]] LogStore& log() { return m_log; }

    void setShowLog(bool show);
    /// Stores the value, also when it is the present one. The next start of the game uses it. Logs
    /// a failure to store it.
    void setFullscreen(bool fullscreen);
    void setResolution(ResolutionChoice resolution);

    /// Whether Play and the maintenance actions are refused: a busy phase, a flow that is still
    /// looking at what is already there, or a program that is about to quit.
    [[nodiscard]] bool isBusy() const { return m_phase.isBusy() || isFlowRunning() || m_quitting; }
    /// From the start of a flow until all that it started has ended.
    [[nodiscard]] bool isFlowRunning() const { return m_flowRunning; }

    /// Starts the setup flow, which skips what is done and ends with the game. Returns at once;
    /// does nothing while busy.
    void play();
    /// Ends the flow with "Cancelled.". Returns at once; flowEnded() follows.
    void cancelSetup();
    /// Closes the running game as the player's own wish. Returns at once; flowEnded() follows.
    void stopGame();

    /// Each asks first where it destroys something, and does nothing while busy.
    void updateGame();
    void reinstall();
    void removeEverything();

    /// The folder with the game's saves, if the game is known and has saved anything.
    [[nodiscard]] std::optional<QString> savesFolder() const;
    void showSaves();
    /// Shows the install folder in the file browser. One set of names and texts serves every
    /// platform, so it is the Finder here too.
    void revealInFinder();
    void copyFailure();
    void copyLog();

    /// Whether the program may quit: asks while the game runs, and unless the player declines ends
    /// what runs, as endForQuit() does.
    bool confirmQuit();
    /// Closes the running game as the player's own wish, or cancels a setup, without asking. From
    /// then on nothing new begins. The caller waits for flowEnded() while isFlowRunning().
    void endForQuit();

    /// Derives info, facts and phase from the disk and clears the progress.
    void refreshState();
    /// Measures the installed size in the background.
    void updateSize();

Q_SIGNALS:
    /// A published property has changed.
    void changed();
    /// A flow has ended and nothing that it started is left running.
    void flowEnded();

private:
    // State.
    Phase phaseOnDisk();
    void store(const QString& key, const QString& value);
    void applySize(int measurement, qint64 bytes);
    std::shared_ptr<const FileDownloader> makeDownloader();
    void applyProgress(const DownloadProgress& progress);
    void clearProgress();
    void enterDownloading(const QString& stepText);
    void enterSettingUp(const QString& stepText);
    void enterPlaying(const QString& stepText);
    void markStarted();

    // Flows: what a press of Play or a housekeeping action starts, one at a time.
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
    QCoro::Task<> waitUntilCleared();
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
    /// The device of the storage root, or of where it would be, at the last look at the disk.
    dev_t m_device = 0;

    /// Stops the background work: measuring, deleting and clearing up.
    std::stop_source m_backgroundStop;
    /// The deletion in the background. Its result is the failure to show; empty for none.
    QFuture<QString> m_deletion = QtFuture::makeReadyFuture(QString());
    int m_sizesStarted = 0;
    int m_sizeShown = 0;
};
