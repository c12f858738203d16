// SPDX-License-Identifier: MIT
#include "DisplayCheck.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace {

std::mutex lockOfMessages;
QStringList messagesAtStart;

} // namespace

DisplayCheck::DisplayCheck()
{
    qInstallMessageHandler(handle);
}

DisplayCheck::~DisplayCheck()
{
    qInstallMessageHandler(nullptr);
    for (const auto& message : std::exchange(messagesAtStart, {}))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void DisplayCheck::handle(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const std::lock_guard guard(lockOfMessages);
    messagesAtStart.append(message);
    if (type != QtFatalMsg)
        return;
    std::fputs("Cavernyx Platformer needs a graphical desktop, and no display could be opened.\n",
               stderr);
    std::_Exit(EXIT_FAILURE);
}
