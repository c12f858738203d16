// SPDX-License-Identifier: MIT
// The question before something is removed, over the sheet that it comes from.

#include "Support/AppModelAccess.h"
#include "Views/Picture.h"

#include "Views/SettingsView.h"
#include "WidgetDesktop.h"

#include <QIcon>
#include <QMessageBox>
#include <QPainter>
#include <QTimer>

namespace {

class AlertGallery : public Picture, public testing::WithParamInterface<Theme>
{
protected:
    AlertGallery()
        : Picture(GetParam())
    {
        QApplication::setWindowIcon(QIcon(QStringLiteral(ICON_FILE)));
    }

    ~AlertGallery() override { QApplication::setWindowIcon({}); }

    /// The window with what lies over it, each where it is.
    QImage everything()
    {
        settle();
        auto picture = window().grab().toImage();
        QPainter painter(&picture);
        for (auto* const front : window().findChildren<QDialog*>())
            painter.drawPixmap(front->pos() - window().pos(), front->grab());
        return picture;
    }
};

TEST_P(AlertGallery, asksOverTheSheet)
{
    AppModelAccess::setPhase(model(), Phase::ready());
    showAll();
    open<SettingsView>(QStringLiteral("Settings\u2026"));
    QTimer::singleShot(0, &window(), [this] {
        auto& alert = only<QMessageBox>();
        save({everything()}, "alert");
        alert.reject();
    });
    EXPECT_FALSE(WidgetDesktop().confirm(
        QStringLiteral("Remove everything?"),
        QStringLiteral("This deletes the downloaded game and engine and frees 312.4 MB. Your save "
                       "files in Godot's folder are not touched."),
        QStringLiteral("Remove")));
}

INSTANTIATE_TEST_SUITE_P(Themes, AlertGallery, testing::Values(Theme::light, Theme::dark));

} // namespace
