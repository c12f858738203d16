// SPDX-License-Identifier: MIT
#include "Support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestFolder::TestFolder()
{
    EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString();
}

QString TestFolder::path(const QString& relative) const
{
    return QDir(m_folder.path()).filePath(relative);
}

QString TestFolder::write(const QString& relative, const QByteArray& contents) const
{
    const auto full = path(relative);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(full).path()));
    QFile file(full);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << full;
    EXPECT_EQ(file.write(contents), contents.size());
    return full;
}

QString TestFolder::writeScript(const QString& relative, const QByteArray& body) const
{
    const auto full = write(relative, "#!/bin/sh\n" + body);
    EXPECT_TRUE(QFile::setPermissions(full, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                QFileDevice::ExeOwner | QFileDevice::ReadGroup |
                                                QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                                QFileDevice::ExeOther));
    return full;
}

QString TestFolder::makeFolder(const QString& relative) const
{
    EXPECT_TRUE(QDir().mkpath(path(relative)));
    return path(relative);
}

QByteArray TestFolder::read(const QString& relative) const
{
    QFile file(path(relative));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << relative;
    return file.readAll();
}

bool TestFolder::exists(const QString& relative) const
{
    const QFileInfo info(path(relative));
    return info.exists() || info.isSymLink();
}

QStringList TestFolder::names(const QString& relative) const
{
    return QDir(path(relative))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}
