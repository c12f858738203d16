// SPDX-License-Identifier: MIT
#include "Process/ResolutionChoice.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString rawValue(ResolutionChoice choice)
{
    switch (choice) {
    case ResolutionChoice::gameDefault:
        return {};
    case ResolutionChoice::r720:
        return u"1280x720"_s;
    case ResolutionChoice::r900:
        return u"1600x900"_s;
    case ResolutionChoice::r1080:
        return u"1920x1080"_s;
    case ResolutionChoice::r1440:
        return u"2560x1440"_s;
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
