// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <fcntl.h>
#include <sys/types.h>

/// A new regular file, written without a buffer.
///
/// QFile reports a full disk only when its buffer is flushed; here each write() that fails throws,
/// and close() throws what the file system reports at the end. The destructor closes the file and
/// ignores errors; the file stays.
class OutputFile final
{
public:
    /// Creates the file at `path`. Throws PlatformError, also if anything exists there.
    explicit OutputFile(const QString& path, mode_t mode = 0644);
    /// Creates the file `name` in the open directory `folder`.
    OutputFile(int folder, const QByteArray& name, mode_t mode);
    /// Writes all of `bytes`. Throws PlatformError, also when the disk is full.
    void write(QByteArrayView bytes);

    /// Closes the file. Throws PlatformError.
    void close();
    /// Closes the file for writing and returns a descriptor of it for reading. Throws
    /// PlatformError.
    [[nodiscard]] FileDescriptor closeForReading();

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }

private:
    [[nodiscard]] QString shownName() const;

    QByteArray m_name;
    FileDescriptor m_descriptor;
};
