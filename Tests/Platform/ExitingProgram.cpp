// SPDX-License-Identifier: MIT
// Starts a child that is to end with the program and goes on for long, writes its id to standard
// output, and ends by exit() with status 7 while the application object and the thread that serves
// the child are still there.
#include "Platform/ChildSetup.h"
#include "Platform/ServiceThread.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <cstdlib>
#include <future>

#include <unistd.h>

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    std::promise<qint64> started;
    ServiceThread::children().post([&started] {
        // It is never destroyed, as no child of the launcher's is that runs when this ends.
        static auto* const child = new QProcess;
        child->setChildProcessModifier(
            [parent = ::getpid()] { ChildSetup::endWithParent(parent); });
        child->start(QStringLiteral("/bin/sleep"), {QStringLiteral("600")});
        child->waitForStarted();
        started.set_value(child->processId());
    });
    std::printf("%lld\n", static_cast<long long>(started.get_future().get()));
    std::exit(7);
}
