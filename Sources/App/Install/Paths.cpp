// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/HostPlatform.h"
#include "Platform/PlatformError.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <filesystem>

namespace {

QString newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

QString Paths::root()
{
    return HostPlatform::applicationSupport() + QStringLiteral("/Cavernyx Platformer");
}

QString Paths::game()
{
    return root() + QStringLiteral("/Game");
}

QString Paths::engines()
{
    return root() + QStringLiteral("/Engine");
}

QString Paths::newStagingFolder(const QString& target)
{
    return target + QStringLiteral(".new-") + newUuid();
}

TemporaryFolder Paths::newTempDir()
{
    return TemporaryFolder(
        QDir::tempPath() + QStringLiteral("/CavernyxPlatformer-") + newUuid());
}

void Paths::ensure(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    if (error)
        throw PlatformError::fromReason(QStringLiteral("create the folder “%1”").arg(path),
            QString::fromStdString(error.message()));
}
