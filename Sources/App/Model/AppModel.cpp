// SPDX-License-Identifier: MIT
#include "Model/AppModel.h"

#include "Install/EngineManager.h"
#include "Install/FileDownloader.h"
#include "Install/Paths.h"
#include "Model/Desktop.h"
#include "Model/ProgressRelay.h"
#include "Model/StoredSettings.h"
#include "Project/GameFacts.h"
#include "Project/ProjectInspector.h"
#include "System/ByteCount.h"
#include "System/DiskSpace.h"
#include "System/Errors.h"
#include "System/OffThread.h"

#include <QFile>
#include <QVariant>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const auto fullscreenKey = u"fullscreen"_s;
const auto resolutionKey = u"resolution"_s;

int wholeSeconds(std::chrono::milliseconds duration)
{
    return static_cast<int>(std::chrono::ceil<std::chrono::seconds>(duration).count());
}

} // namespace

AppModel::AppModel(Desktop& desktop, InstallationLock& lock, const Durations& durations)
    : m_desktop(desktop)
    , m_lock(lock)
    , m_durations(durations)
    , m_log(LogStore::defaultMaxLines, durations.logFlushInterval)
    , m_runner(durations)
{
    m_fullscreen = StoredSettings::value(fullscreenKey).toBool();
    m_resolution = resolutionChoice(StoredSettings::value(resolutionKey).toString())
                       .value_or(ResolutionChoice::gameDefault);
    clearStaleFolders();
    refreshState();
}

AppModel::~AppModel()
{
    Q_ASSERT_X(!m_flowRunning, "AppModel", "the flow must have ended before its model does");
    m_backgroundStop.request_stop();
}

QString AppModel::statusTitle() const
{
    switch (m_phase.kind()) {
    case Phase::Kind::needs:
        //: The status after a failure: the player has to do something. The next line says what.
        return tr("Needs something");
    case Phase::Kind::notDownloaded:
        //: The status: the game is not downloaded yet.
        return tr("Not downloaded");
    case Phase::Kind::downloading:
        //: The status: the launcher is downloading the game or its engine.
        return tr("Downloading");
    case Phase::Kind::settingUp:
        //: The status: the launcher is preparing the game for its first start.
        return tr("Setting up");
    case Phase::Kind::ready:
        //: The status: the game can be played.
        return tr("Ready");
    case Phase::Kind::playing:
        //: The status: the game is starting, or it is running.
        return m_stillStarting ? tr("Starting…") : tr("Playing");
    }
    Q_UNREACHABLE();
}

QString AppModel::statusDetail() const
{
    switch (m_phase.kind()) {
    case Phase::Kind::needs:
        return m_phase.message();
    case Phase::Kind::notDownloaded:
        return tr("Downloads the game and the Godot engine once, about %1 MB for the engine plus "
                  "the game's files. Nothing to type.")
            .arg(GameFacts::engineMegabytes);
    case Phase::Kind::downloading:
    case Phase::Kind::settingUp:
        return m_stepText;
    case Phase::Kind::ready:
        return tr("Everything is installed. Press Play.");
    case Phase::Kind::playing:
        return m_stillStarting
                   ? tr("The game was launched. Waiting %n seconds to make sure it stays open.",
                        nullptr, wholeSeconds(m_durations.startupThreshold))
                   : tr("The game is running in its own window.");
    }
    Q_UNREACHABLE();
}

void AppModel::setShowLog(bool show)
{
    if (m_showLog == show)
        return;
    m_showLog = show;
    Q_EMIT changed();
}

void AppModel::setFullscreen(bool fullscreen)
{
    store(fullscreenKey, fullscreen ? u"true"_s : u"false"_s);
    if (m_fullscreen == fullscreen)
        return;
    m_fullscreen = fullscreen;
    Q_EMIT changed();
}

void AppModel::setResolution(ResolutionChoice resolution)
{
    store(resolutionKey, rawValue(resolution));
    if (m_resolution == resolution)
        return;
    m_resolution = resolution;
    Q_EMIT changed();
}

void AppModel::store(const QString& key, const QString& value)
{
    try {
        StoredSettings::setValue(key, value);
    } catch (const PlatformError& error) {
        m_log.append(error.message()); // The setting holds until the program ends.
    }
}

void AppModel::refreshState()
{
    clearProgress();
    m_stepText.clear();
    m_stillStarting = false;
    m_info.reset();
    m_facts = RepoFacts();
    try {
        m_phase = phaseOnDisk();
    } catch (const PlatformError& error) {
        m_phase = Phase::needs(error.message());
    }
    Q_EMIT changed();
    updateSize();
}

Phase AppModel::phaseOnDisk()
{
    m_device = deviceOf(Paths::root());
    const auto game = Paths::game();
    const auto project = ProjectInspector::findProject(game);
    // While a replacement is not finished, the old folder may be partly deleted.
    if (!project || !Paths::completeFolders().isEmpty())
        return Phase::notDownloaded();
    m_info = ProjectInspector::inspect(*project);
    if (!m_info)
        return Phase::notDownloaded();
    m_facts = ProjectInspector::facts(*project, game);
    const EngineManager engine{.mono = m_info->usesCSharp};
    const auto complete = engine.executable() && QFile::exists(engine.markerFile());
    return complete ? Phase::ready() : Phase::notDownloaded();
}

void AppModel::updateSize()
{
    QString root;
    try {
        root = Paths::root();
    } catch (const PlatformError&) {
        return; // There is no home folder; the phase shows that.
    }
    const auto measurement = ++m_sizesStarted;
    const auto size =
        offThread([root, stop = m_backgroundStop.get_token()] { return Paths::size(root, stop); });
    whenFinished(size, this, [this, measurement](qint64 bytes) { applySize(measurement, bytes); });
}

void AppModel::applySize(int measurement, qint64 bytes)
{
    // Measurements may overlap; an older one must not overwrite the result of a newer one.
    if (measurement < m_sizeShown)
        return;
    m_sizeShown = measurement;
    const auto text = bytes < 1 ? QString() : formattedByteCount(bytes);
    if (text == m_installedSize)
        return;
    m_installedSize = text;
    Q_EMIT changed();
}

std::shared_ptr<const FileDownloader> AppModel::makeDownloader()
{
    // Deleting the old relay drops its pending reports. A download may keep a plain pointer to its
    // relay, since it reports nothing after its future has finished.
    m_progressRelay = std::make_unique<ProgressRelay>();
    connect(m_progressRelay.get(), &ProgressRelay::progressed, this, &AppModel::applyProgress);
    return std::make_shared<const FileDownloader>(
        [relay = m_progressRelay.get()](const DownloadProgress& progress) {
            relay->report(progress);
        },
        m_durations.stallTimeout);
}

void AppModel::applyProgress(const DownloadProgress& progress)
{
    if (progress.total >= 1) {
        const auto fraction =
            static_cast<double>(progress.received) / static_cast<double>(progress.total);
        m_progress = std::min(fraction, 1.0);
    } else {
        m_progress.reset();
    }
    m_progressText = progress.text();
    Q_EMIT changed();
}

void AppModel::clearProgress()
{
    m_progressRelay.reset();
    m_progress.reset();
    m_progressText.clear();
}

void AppModel::enter(const Phase& phase, const QString& stepText)
{
    clearProgress();
    m_phase = phase;
    m_stepText = stepText;
    m_stillStarting = phase == Phase::Kind::playing;
    Q_EMIT changed();
}

void AppModel::markStarted()
{
    if (m_phase != Phase::Kind::playing || !m_stillStarting)
        return;
    m_stillStarting = false;
    Q_EMIT changed();
}
