// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <fcntl.h>
#include <sys/types.h>

/// A new regular file that is being written, straight through its descriptor.
///
/// QFile's buffer lets a full disk go unnoticed until it is flushed; here each write that fails
/// says so at once, and close() reports what the file system only tells at the end. A file that was
/// not closed when its writer goes stays, and the errors of its end are ignored.
class OutputFile final
{
public:
    /// Creates the file at `path`; anything that is there already, a link included, is an error.
    /// Throws PlatformError.
    explicit OutputFile(const QString& path, mode_t mode = 0644);
    /// The same for `name`, as the file system spells it, relative to the open folder `folder`.
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
