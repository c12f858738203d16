// SPDX-License-Identifier: MIT
#include "Support/ProcessState.h"

#include <QFile>

using namespace Qt::StringLiterals;

bool processRuns(qint64 id)
{
    QFile status(u"/proc/%1/stat"_s.arg(id));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    // The state follows the program's name in parentheses, which may contain any character.
    const auto text = status.readAll();
    const auto state = text.mid(text.lastIndexOf(')') + 2, 1);
    return !state.isEmpty() && state != "Z" && state != "X";
}
