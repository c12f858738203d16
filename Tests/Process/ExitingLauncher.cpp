// SPDX-License-Identifier: MIT
// Runs a child that is to end with the program and goes on for long, writes its id to standard
// output, and ends by exit() with status 7 while a worker thread still runs the child.
#include "Process/ManagedProcess.h"
#include "System/OffThread.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <future>

using namespace Qt::StringLiterals;

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    // Neither is destroyed, as when the display goes while the launcher runs a child.
    auto& started = *new std::promise<QString>;
    auto& process = *new ManagedProcess;
    offThread([&] {
        return process.run(u"/bin/sh"_s, {u"-c"_s, u"echo $$; exec sleep 600"_s},
                           [&started](const QString& id) { started.set_value(id); });
    });
    std::puts(qPrintable(started.get_future().get()));
    std::exit(7);
}
