// SPDX-License-Identifier: MIT
#pragma once

#include "Support/QtPrinters.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A real temporary folder for one test, removed with everything in it afterwards.
class TestFolder final
{
public:
    TestFolder();

    [[nodiscard]] QString path() const { return m_folder.path(); }
    /// The path of `relative` in the folder. An absolute path stays as it is, here and below.
    [[nodiscard]] QString path(const QString& relative) const;

    /// Writes a file, creating missing folders, and returns its path.
    QString write(const QString& relative, const QByteArray& contents = {}) const;
    /// Writes an executable `/bin/sh` script and returns its path.
    QString writeScript(const QString& relative, const QByteArray& body) const;
    /// Creates a folder with its parents and returns its path.
    QString makeFolder(const QString& relative) const;

    /// The contents of a file; a test failure when it cannot be read.
    [[nodiscard]] QByteArray read(const QString& relative) const;
    [[nodiscard]] bool exists(const QString& relative) const;
    /// The names in a folder, hidden ones included, sorted.
    [[nodiscard]] QStringList names(const QString& relative = {}) const;

private:
    QTemporaryDir m_folder;
};
