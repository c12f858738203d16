// SPDX-License-Identifier: MIT
// A start of the launcher without its window: takes a lock file, an activation token and how many
// milliseconds to be patient. It writes a line to standard error before it begins, and to standard
// output what it comes to and every later start that it is told of, a line each. The first launcher
// goes on until its standard input ends; a line there makes it stop listening.
#include "Shell/SingleInstance.h"
#include "System/InstallationLock.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cstdio>

#include <unistd.h>

namespace {

void say(const QByteArray& line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const auto lockFile = QString::fromUtf8(arguments[1]);
    InstallationLock lock(lockFile);
    SingleInstance instance(lock, SingleInstance::serverName(lockFile));
    QObject::connect(&instance, &SingleInstance::activated,
                     [](const QByteArray& token) { say("activated " + token); });

    std::fputs("begins\n", stderr);
    const std::chrono::milliseconds patience(QByteArray(arguments[3]).toInt());
    switch (instance.start(arguments[2], patience)) {
    case SingleInstance::Start::handedOver:
        say("handed over");
        return 0;
    case SingleInstance::Start::noAnswer:
        say("no answer");
        return 0;
    case SingleInstance::Start::first:
        say("first");
    }
    QSocketNotifier orders(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, [&instance] {
        std::array<char, 1> order{};
        if (::read(STDIN_FILENO, order.data(), order.size()) <= 0) {
            QCoreApplication::exit();
            return;
        }
        instance.stopListening();
        say("deaf");
    });
    return QCoreApplication::exec();
}
