// SPDX-License-Identifier: MIT
// How long the window does not answer while the log panel is open and the log is flooded: the gaps
// between two rounds of the event loop, with lines of the length given.
#include "Support/FakeDesktop.h"

#include "Controls/LauncherStyle.h"
#include "Model/AppModel.h"
#include "System/InstallationLock.h"
#include "Views/LogView.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace {

constexpr auto watched = 3000;

/// Floods the log from another thread, as an engine would, for as long as it lives.
class Flood final
{
public:
    Flood(LogStore& log, std::int64_t length)
        : m_thread([this, &log, line = QString(static_cast<int>(length), u'x')] {
            while (!m_stop) {
                for (auto i = 0; i < 200; ++i)
                    log.append(line);
                std::this_thread::sleep_for(std::chrono::milliseconds{5});
            }
        })
    {
    }
    ~Flood()
    {
        m_stop = true;
        m_thread.join();
    }

    Flood(const Flood&) = delete;
    Flood& operator=(const Flood&) = delete;

private:
    std::atomic_bool m_stop = false;
    std::thread m_thread;
};

void eventLoopGaps(benchmark::State& state)
{
    FakeDesktop desktop;
    InstallationLock session{QString()};
    AppModel model(desktop, session);
    LogView view(model);
    view.resize(580, view.sizeHint().height());
    view.show();
    std::vector<double> gaps;
    for (auto _ : state) {
        const Flood flood(model.log(), state.range());
        QElapsedTimer time;
        QElapsedTimer gap;
        time.start();
        while (time.elapsed() < watched) {
            // Round by round, so that what one round takes is what a click would wait.
            gap.start();
            QCoreApplication::processEvents();
            gaps.push_back(static_cast<double>(gap.nsecsElapsed()) / 1e6);
            std::this_thread::sleep_for(std::chrono::microseconds{200});
        }
    }
    std::sort(gaps.begin(), gaps.end());
    state.counters["ms, 99th percentile"] = gaps.at(gaps.size() * 99 / 100);
    state.counters["ms, longest"] = gaps.back();
}

BENCHMARK(eventLoopGaps)->Arg(80)->Arg(500)->Arg(2000)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argumentCount, char** arguments)
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(new LauncherStyle);
    const QApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
