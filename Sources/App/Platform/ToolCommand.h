// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// A program of the operating system and its arguments, never run through a shell.
struct ToolCommand
{
    QString program;
    QStringList arguments;

    bool operator==(const ToolCommand&) const = default;
};
