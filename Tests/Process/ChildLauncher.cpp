// SPDX-License-Identifier: MIT
// Runs the program given as its arguments, after the words "ends" or "outlives", as a child of the
// named lifetime, and returns its exit status. A test kills it to see what becomes of the child.
#include "Process/ManagedProcess.h"
#include "System/InheritedAttributes.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argumentCount, char** arguments)
{
    if (!InheritedAttributes::replace())
        return EXIT_FAILURE;
    const QCoreApplication application(argumentCount, arguments);
    auto programAndArguments = QCoreApplication::arguments().sliced(1);
    const auto lifetime = programAndArguments.takeFirst() == "ends"_L1
                              ? ManagedProcess::Lifetime::endsWithLauncher
                              : ManagedProcess::Lifetime::mayOutliveLauncher;
    const auto program = programAndArguments.takeFirst();

    return ManagedProcess(lifetime).run(program, programAndArguments,
                                        [](const QString& lines) { std::puts(qPrintable(lines)); });
}
