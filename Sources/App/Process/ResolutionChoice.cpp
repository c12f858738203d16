// SPDX-License-Identifier: MIT
#include "Process/ResolutionChoice.h"

#include <algorithm>

QString rawValue(ResolutionChoice choice)
{
    switch (choice) {
    case ResolutionChoice::gameDefault:
        return {};
    case ResolutionChoice::r720:
        return QStringLiteral("1280x720");
    case ResolutionChoice::r900:
        return QStringLiteral("1600x900");
    case ResolutionChoice::r1080:
        return QStringLiteral("1920x1080");
    case ResolutionChoice::r1440:
        return QStringLiteral("2560x1440");
    }
    Q_UNREACHABLE();
}

std::optional<ResolutionChoice> resolutionChoice(const QString& rawValue)
{
    const auto found =
        std::ranges::find_if(allResolutionChoices, [&rawValue](ResolutionChoice choice) {
            return ::rawValue(choice) == rawValue;
        });
    if (found == allResolutionChoices.end())
        return std::nullopt;
    return *found;
}
