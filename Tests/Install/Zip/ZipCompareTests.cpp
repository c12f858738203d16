// SPDX-License-Identifier: MIT
#include "Install/Zip/ZipExtractor.h"
#include "Support/TestFolder.h"
#include "System/FileTree.h"
#include "System/InputFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// The archives that the fuzzer starts from, and each of them with one bit of each byte changed.
QList<QByteArray> archives()
{
    QList<QByteArray> all;
    const QDir corpus(QStringLiteral(ARCHIVES));
    for (const auto& name : corpus.entryList(QDir::Files, QDir::Name)) {
        QFile file(corpus.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const auto original = file.readAll();
        all.append(original);
        for (qsizetype at = 0; at < original.size(); ++at) {
            all.append(original);
            all.last()[at] = static_cast<char>(original[at] ^ (1 << at % 8));
        }
    }
    return all;
}

TEST(ZipCompare, unpacksTheNamesAndBytesThatAnotherReaderFinds)
{
    const TestFolder folder;
    int acceptedCount = 0;
    for (const auto& bytes : archives()) {
        const auto name = QString::number(acceptedCount);
        const auto archive = folder.write(name + u".zip"_s, bytes);
        const auto tree = folder.makeFolder(name);
        if (ZipExtractor::extract(InputFile(archive), tree, [](const QString&) {}, {}) == 0) {
            ++acceptedCount;
        } else {
            QFile::remove(archive);
            FileTree::remove(tree);
        }
    }
    EXPECT_GT(acceptedCount, 100);

    QProcess comparison;
    comparison.setProcessChannelMode(QProcess::MergedChannels);
    comparison.start(QStringLiteral(COMPARE_WITH_ZIPFILE), {folder.path()});
    ASSERT_TRUE(comparison.waitForFinished(-1));
    EXPECT_EQ(comparison.exitCode(), 0) << comparison.readAll().constData();
}

} // namespace
