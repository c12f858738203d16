// SPDX-License-Identifier: MIT
#include "Platform/Appearance.h"
#include "Platform/DesktopNotification.h"
#include "Platform/FileBrowser.h"
#include "Platform/SleepInhibition.h"
#include "Platform/TaskBar.h"

#include <QProcess>

// The services of the desktop on macOS, which has no session bus: the Finder shows a folder. The
// others are not there yet, and do nothing.

using namespace Qt::StringLiterals;

void showInFileBrowser(const QString& path, const std::function<void()>& onFailure)
{
    if (!QProcess::startDetached(u"/usr/bin/open"_s, {u"-R"_s, path}))
        onFailure();
}

void showTaskBarProgress(const QString&, std::optional<double>) {}

AppearancePortal::AppearancePortal() = default;
void AppearancePortal::settingChanged(const QDBusMessage&) {}

DesktopNotification::DesktopNotification(const QString&, const QString&, const QString&) {}
DesktopNotification::~DesktopNotification() = default;
void DesktopNotification::portalActionInvoked(const QDBusMessage&) {}
void DesktopNotification::setActivationToken(uint, const QString&) {}
void DesktopNotification::actionInvoked(uint, const QString&) {}

SleepInhibition::SleepInhibition(const QString& reason)
    : m_reason(reason)
{
}
SleepInhibition::~SleepInhibition() = default;
