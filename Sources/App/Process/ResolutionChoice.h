// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

/// The window size the game is started with.
enum class ResolutionChoice { gameDefault, r720, r900, r1080, r1440 };

/// Every choice, in the order in which the settings list them.
inline constexpr std::array allResolutionChoices{ResolutionChoice::gameDefault,
                                                 ResolutionChoice::r720, ResolutionChoice::r900,
                                                 ResolutionChoice::r1080, ResolutionChoice::r1440};

/// Returns the value for the settings and the engine, e.g. "1280x720"; empty for gameDefault.
QString rawValue(ResolutionChoice choice);

/// Returns the choice with this raw value, if there is one.
std::optional<ResolutionChoice> resolutionChoice(const QString& rawValue);
