// SPDX-License-Identifier: MIT
#pragma once

#include "Project/GameFacts.h"

#include <QString>
#include <QStringList>

/// The values that the launcher reads from the game's `project.godot`.
struct ProjectInfo
{
    /// The folder that holds `project.godot`.
    QString folder;
    QString name = QString::fromUtf8("Game");
    /// The `config_version`: 4 for Godot 3.1 to 3.6. inspect() never returns 0.
    qint64 configVersion = 0;
    /// A "res://" path; empty when absent.
    QString mainScene;
    /// The `config/features` tags in file order.
    QStringList features;
    bool usesCSharp = false;

    /// Returns false for a project of Godot 4.
    [[nodiscard]] bool isForGodot3() const { return configVersion <= 4; }

    bool operator==(const ProjectInfo&) const = default;
};

/// Facts from the README and license files of the game's repository. The defaults apply where the
/// files name none.
struct RepoFacts
{
    QString summary = GameFacts::summary.toString();
    QString license = GameFacts::license.toString();
    /// The whole copyright line of the license file.
    QString author = GameFacts::author.toString();

    bool operator==(const RepoFacts&) const = default;
};
