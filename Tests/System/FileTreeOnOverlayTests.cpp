// SPDX-License-Identifier: MIT
#include "System/FileTree.h"

#include "Support/InAnotherProcess.h"
#include "Support/OwnMounts.h"
#include "Support/TestFolder.h"
#include "System/Errors.h"

#include <gtest/gtest.h>

#include <QFile>

#include <functional>

#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder with an old "Game" in the lower layer of an overlay, which cannot be renamed.
class FileTreeOnOverlayTest : public testing::Test
{
protected:
    /// Runs `work`, which returns 0 if all is well, in a process in which the overlay is mounted.
    void onOverlay(const std::function<int()>& work) const
    {
        m_layers.write(u"lower/Game/folder/old"_s);
        const auto status = inAnotherProcess([&] {
            if (!separateMounts() || !mountOverlay(m_folder, m_layers.path()))
                return noOwnMounts;
            m_layers.write(u"lower/Game.new/new"_s);
            return work();
        });
        if (status == noOwnMounts)
            GTEST_SKIP() << "No overlay can be mounted here.";
        EXPECT_EQ(status, 0);
    }

    void replace(const std::stop_token& stop = {}) const
    {
        FileTree::replace(m_target, m_folder + u"/Game.new"_s, m_folder + u"/Game.old"_s, stop);
    }

    const TestFolder m_layers;
    const QString m_folder = m_layers.path(u"lower"_s);
    const QString m_target = m_layers.path(u"lower/Game"_s);
    const QString m_complete = m_layers.path(u"lower/Game.new.complete"_s);
};

TEST_F(FileTreeOnOverlayTest, replacesAFolderThatCannotBeRenamed)
{
    onOverlay([this] {
        replace();
        return m_layers.names(u"lower"_s) == QStringList{u"Game"_s} &&
                       m_layers.names(u"lower/Game"_s) == QStringList{u"new"_s}
                   ? 0
                   : 1;
    });
}

TEST_F(FileTreeOnOverlayTest, keepsTheNewFolderForTheNextStartWhenItCannotFinish)
{
    onOverlay([this] {
        // A file system that is mounted inside cannot be deleted.
        if (::mount("tmpfs", QFile::encodeName(m_target + u"/folder"_s).constData(), "tmpfs", 0,
                    nullptr) != 0)
            return noOwnMounts;
        try {
            replace();
            return 1;
        } catch (const PlatformError&) {
        }
        if (!m_layers.exists(u"lower/Game.new.complete/new"_s))
            return 2;
        ::umount(QFile::encodeName(m_target + u"/folder"_s).constData());
        FileTree::supersede(m_target, m_complete);
        return m_layers.names(u"lower/Game"_s) == QStringList{u"new"_s} ? 0 : 3;
    });
}

} // namespace
