// SPDX-License-Identifier: MIT
#pragma once

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// A folder to be removed, in one of the test's own.
class TreeRemovalTest : public testing::Test
{
protected:
    ~TreeRemovalTest() override { setMode(u"Game/locked"_s, 0755); }

    void setMode(const QString& relative, mode_t mode) const
    {
        ::chmod(QFile::encodeName(m_folder.path(relative)).constData(), mode);
    }

    const TestFolder m_folder;
    const QString m_target = m_folder.path(u"Game"_s);
};
