// SPDX-License-Identifier: MIT
// Runs the program given as its arguments, after the words "ends" or "outlives", as a child of the
// named lifetime, and gives its exit status. A test kills it to see what becomes of the child.
#include "Process/ManagedProcess.h"

#include <QCoreApplication>
#include <QFutureWatcher>

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    QCoreApplication application(argumentCount, arguments);
    auto programAndArguments = QCoreApplication::arguments().sliced(1);
    const auto lifetime = programAndArguments.takeFirst() == QLatin1String("ends")
                              ? ManagedProcess::Lifetime::endsWithLauncher
                              : ManagedProcess::Lifetime::mayOutliveLauncher;
    const auto program = programAndArguments.takeFirst();

    ManagedProcess process(lifetime);
    QFutureWatcher<int> watcher;
    QObject::connect(&watcher, &QFutureWatcher<int>::finished, &application,
                     [&watcher] { QCoreApplication::exit(watcher.result()); });
    watcher.setFuture(process.run(program, programAndArguments,
                                  [](const QString& line) { std::puts(qPrintable(line)); }));
    return QCoreApplication::exec();
}
