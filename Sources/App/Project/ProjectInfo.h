// SPDX-License-Identifier: MIT
#pragma once

#include "Project/GameFacts.h"

#include <QString>
#include <QStringList>

/// What the launcher knows of the downloaded game, read from its `project.godot`.
struct ProjectInfo
{
    /// The folder that holds `project.godot`.
    QString folder;
    QString name = QString::fromUtf8("Game");
    /// The file's `config_version`; 4 for Godot 3.1 to 3.6. Never 0 in a record that was read.
    qint64 configVersion = 0;
    /// A "res://" path; empty when absent.
    QString mainScene;
    /// The `config/features` tags in file order.
    QStringList features;
    bool usesCSharp = false;

    /// Whether the project is made for Godot 3; else for Godot 4.
    [[nodiscard]] bool isForGodot3() const { return configVersion <= 4; }

    bool operator==(const ProjectInfo&) const = default;
};

/// What the game's repository says of itself. The defaults stand in until it is downloaded, and
/// for whatever it does not say.
struct RepoFacts
{
    QString summary = GameFacts::summary.toString();
    /// The licence's name.
    QString license = GameFacts::license.toString();
    /// The whole copyright line of the licence file.
    QString author = GameFacts::author.toString();

    bool operator==(const RepoFacts&) const = default;
};
