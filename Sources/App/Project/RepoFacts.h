// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the game's repository says of itself. The defaults stand in until it is downloaded, and
/// for whatever it does not say.
struct RepoFacts
{
    QString summary = QStringLiteral("A short platform/adventure demo project to teach how to "
                                     "create similar 2D games, inspired by cavernyxes.");
    /// The licence's name.
    QString license = QStringLiteral("MIT License");
    /// The whole copyright line of the licence file.
    QString author = QStringLiteral("Quennet (Brindlework)");

    bool operator==(const RepoFacts&) const = default;
};
