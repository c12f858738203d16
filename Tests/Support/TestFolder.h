// SPDX-License-Identifier: MIT
#pragma once

#include "Support/QtPrinters.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A temporary folder for one test. The destructor removes it.
class TestFolder final
{
public:
    TestFolder();

    [[nodiscard]] QString path() const { return m_folder.path(); }
    /// The path of `relative` in the folder. All functions also take an absolute path.
    [[nodiscard]] QString path(const QString& relative) const;

    /// Writes a file, creating missing folders, and returns its path.
    QString write(const QString& relative, const QByteArray& contents = {}) const;
    /// Writes an executable `/bin/sh` script and returns its path.
    QString writeScript(const QString& relative, const QByteArray& body) const;
    /// Creates a folder with its parents and returns its path.
    QString makeFolder(const QString& relative) const;

    /// Returns the contents of a file. Fails the test if it cannot be read.
    [[nodiscard]] QByteArray read(const QString& relative) const;
    [[nodiscard]] bool exists(const QString& relative) const;
    /// Returns the names in a folder, including hidden ones, sorted.
    [[nodiscard]] QStringList names(const QString& relative = {}) const;

private:
    QTemporaryDir m_folder;
};
