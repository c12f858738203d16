// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What the launcher knows of the downloaded game, read from its `project.godot`.
struct ProjectInfo
{
    /// The folder that holds `project.godot`.
    QString folder;
    QString name = QStringLiteral("Game");
    /// The file's `config_version`; 4 for Godot 3.1 to 3.6. Never 0 in a record that was read.
    qint64 configVersion = 0;
    /// A "res://" path; empty when absent.
    QString mainScene;
    /// The `config/features` tags in file order.
    QStringList features;
    bool usesCSharp = false;

    bool operator==(const ProjectInfo&) const = default;
};
