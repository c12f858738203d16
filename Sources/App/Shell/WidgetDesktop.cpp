// SPDX-License-Identifier: MIT
#include "Shell/WidgetDesktop.h"

#include "Controls/TypeScale.h"
#include "Platform/FileBrowser.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// The window in front: a sheet if one is open, else the main window.
QWidget* frontWindow()
{
    if (auto* const modal = QApplication::activeModalWidget())
        return modal;
    const auto windows = QApplication::topLevelWidgets();
    for (auto* const window : windows) {
        if (window->isVisible() && !window->parent())
            return window;
    }
    return nullptr;
}

void setUp(QMessageBox& alert, const QString& title, const QString& message)
{
    alert.setWindowTitle(QCoreApplication::applicationName());
    alert.setWindowModality(Qt::WindowModal);
    alert.setIconPixmap(QApplication::windowIcon().pixmap(64));
    alert.setTextFormat(Qt::PlainText);
    alert.setText(title);
    alert.setInformativeText(message);
    // QMessageBox gives access to its labels by these object names only.
    if (auto* const label = alert.findChild<QLabel*>(u"qt_msgbox_label"_s))
        label->setFont(textFont(TextStyle::headline));
    if (auto* const label = alert.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
        label->setMinimumWidth(300);
    // Setting the texts has created a new layout.
    alert.layout()->setContentsMargins(20, 20, 20, 20);
}

} // namespace

bool WidgetDesktop::confirm(const QString& title, const QString& message, const QString& button)
{
    QMessageBox alert(frontWindow());
    setUp(alert, title, message);
    auto* const action = alert.addButton(button, QMessageBox::AcceptRole);
    auto* const cancel = alert.addButton(tr("Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(action);
    alert.setEscapeButton(cancel);
    alert.exec();
    return alert.clickedButton() == action;
}

void WidgetDesktop::copyText(const QString& text)
{
    QApplication::clipboard()->setText(text);
}

void WidgetDesktop::openFolder(const QString& path)
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    auto* const alert = new QMessageBox(frontWindow());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    setUp(*alert, tr("The folder could not be opened."),
          tr("This desktop has no file browser. The folder is “%1”.").arg(path));
    alert->addButton(tr("OK"), QMessageBox::AcceptRole);
    alert->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    alert->open();
}

void WidgetDesktop::revealFolder(const QString& path)
{
    showInFileBrowser(path, [this, path] { openFolder(QFileInfo(path).path()); });
}
