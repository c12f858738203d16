// SPDX-License-Identifier: MIT
//
// FaultSubject HOST ACTION: a run of the launcher without its window. Starts as the program does,
// with HOST in place of the real web host, does one thing that a player can do (start is nothing
// more; what has no name of its own is a press of Play), waits until all of it has ended, and ends
// as the program does. Prints the log and, last, the status. Spans of time are short.
#include "Install/Http/WebHost.h"
#include "Install/Paths.h"
#include "Model/AppModel.h"
#include "Support/FakeDesktop.h"
#include "System/InstallationLock.h"
#include "System/OffThread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QStringList>

#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

QString host;

void act(AppModel& model, const QString& action)
{
    if (action == u"update")
        model.updateGame();
    else if (action == u"reinstall")
        model.reinstall();
    else if (action == u"remove")
        model.removeEverything();
    else if (action == u"settings")
        model.setFullscreen(!model.fullscreen());
    else if (action != u"start")
        model.play();
}

void waitForFlow(const AppModel& model)
{
    QEventLoop loop;
    QObject::connect(&model, &AppModel::flowEnded, &loop, &QEventLoop::quit);
    if (model.isFlowRunning())
        loop.exec();
}

void run(InstallationLock& lock, const QString& action)
{
    static FakeDesktop desktop;
    // Never destroyed, as in the program: it may still be measuring the installed size.
    auto& model = *new AppModel(desktop, lock,
                                {.startupThreshold = 50ms,
                                 .importPollInterval = 10ms,
                                 .importSettleTime = 10ms,
                                 .logFlushInterval = 10ms});
    act(model, action);
    waitForFlow(model);
    // What the model leaves to the background, and what it makes of its end.
    workerPool().waitForDone();
    QCoreApplication::processEvents();
    for (const auto& line : model.log().newest())
        std::puts(qPrintable(line));
    std::puts(qPrintable(model.statusTitle() + u": "_s + model.statusDetail()));
}

} // namespace

QString webHost()
{
    return host;
}

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    QCoreApplication::setApplicationName(u"Cavernyx Platformer"_s);
    const auto words = QCoreApplication::arguments();
    host = words.value(1);

    InstallationLock lock(Paths::lockFile());
    if (!lock.tryAcquire()) {
        std::puts("another launcher runs");
        return EXIT_FAILURE;
    }
    run(lock, words.value(2));
    workerPool().waitForDone();
    lock.release();
    return EXIT_SUCCESS;
}
