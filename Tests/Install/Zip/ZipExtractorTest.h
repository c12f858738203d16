// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Zip/ZipExtractor.h"
#include "Support/TestFolder.h"
#include "Support/ZipWriter.h"
#include "System/InputFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

#include <stop_token>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Unpacks archives that a test puts together.
class ZipExtractorTest : public testing::Test
{
protected:
    int extract(const QByteArray& archive)
    {
        log.clear();
        const auto file = folder.write(u"the archive.zip"_s, archive);
        const auto target = folder.makeFolder(u"un packed"_s);
        return ZipExtractor::extract(
            InputFile(file), target, [this](const QString& line) { log.append(line); },
            stop.get_token());
    }
    int extract(const ZipWriter& zip) { return extract(zip.archive()); }

    /// The sentence of an archive that is refused because of one entry.
    static QString refusal(const QString& name, const QString& reason)
    {
        return u"The archive entry “%1” %2."_s.arg(name, reason);
    }

    /// A refused archive leaves nothing, not even its honest first entry.
    void expectRefusal(const ZipWriter& zip, const QString& reason)
    {
        EXPECT_EQ(extract(zip), 1);
        EXPECT_EQ(log, QStringList{reason});
        EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty());
    }
    void expectRefusal(const ZipWriter::Entry& hostile, const QString& reason)
    {
        expectRefusal(ZipWriter().addFile("honest").add(hostile).addFile("last"), reason);
    }

    [[nodiscard]] QString unpacked(const QString& name) const { return u"un packed/"_s + name; }
    [[nodiscard]] unsigned modeOf(const QString& name) const
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(QFile::encodeName(folder.path(unpacked(name))).constData(), &status), 0);
        return status.st_mode & 07777;
    }

    TestFolder folder;
    QStringList log;
    std::stop_source stop;
};
