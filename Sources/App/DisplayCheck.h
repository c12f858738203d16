// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QMessageLogContext;
class QString;

/// While the application starts, Qt's own words for a display that cannot be opened, and its abort,
/// are replaced by one sentence and the end of the program with status 1. Whatever the cause is -
/// no display, no permission, no plug-in for it - Qt alone knows, and only so late. What it says
/// without giving up is passed on afterwards.
class DisplayCheck final
{
public:
    DisplayCheck();
    ~DisplayCheck();

    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);
};
