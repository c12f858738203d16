// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <fcntl.h>
#include <sys/types.h>

/// A new regular file, written without a buffer. Unlike QFile, write() reports a full disk at once.
/// The destructor closes the file and ignores errors.
class OutputFile final
{
public:
    /// Creates the file at `path`. Throws PlatformError, also if the path exists.
    explicit OutputFile(const QString& path, mode_t mode = 0644);
    /// Creates the file `name` in the open directory `folder`.
    OutputFile(int folder, const QByteArray& name, mode_t mode);

    /// Writes all of `bytes`. Throws PlatformError.
    void write(QByteArrayView bytes);

    /// Closes the file. Throws PlatformError.
    void close();
    /// Closes the file and returns a descriptor for reading it. Throws PlatformError.
    [[nodiscard]] FileDescriptor closeForReading();

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }

private:
    [[nodiscard]] QString shownName() const;

    QByteArray m_name;
    FileDescriptor m_descriptor;
};
