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
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// Returns an open sheet, else the main window.
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

QWidget* mainWindow(QWidget* window)
{
    while (window && window->parentWidget())
        window = window->parentWidget();
    return window;
}

/// An alert over the window in front. Its parent is the main window, because a sheet below it may
/// be closed: assistive technology can press the buttons of a blocked window.
class Alert final : public QMessageBox
{
public:
    Alert(const QString& title, const QString& message, QWidget* front = frontWindow())
        : QMessageBox(mainWindow(front))
    {
        setWindowTitle(QCoreApplication::applicationName());
        setWindowModality(Qt::ApplicationModal);
        setIconPixmap(QApplication::windowIcon().pixmap(64));
        setTextFormat(Qt::PlainText);
        setText(title);
        setInformativeText(message);
        // QMessageBox has no other access to its labels.
        if (auto* const label = findChild<QLabel*>(u"qt_msgbox_label"_s))
            label->setFont(textFont(TextStyle::headline));
        if (auto* const label = findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
            label->setMinimumWidth(300);
        // Not earlier: setText() creates a new layout.
        layout()->setContentsMargins(20, 20, 20, 20);
        if (front) {
            winId(); // Creates windowHandle().
            windowHandle()->setTransientParent(front->windowHandle());
        }
    }
};

} // namespace

bool WidgetDesktop::confirm(const QString& title, const QString& message, const QString& button)
{
    Alert alert(title, message);
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
    auto* const alert =
        new Alert(tr("The folder could not be opened."),
                  //: %1 is the path of a folder.
                  tr("This desktop has no file browser. The folder is “%1”.").arg(path));
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->addButton(tr("OK"), QMessageBox::AcceptRole);
    alert->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    alert->show();
}

void WidgetDesktop::revealFolder(const QString& path)
{
    showInFileBrowser(path, [this, path] { openFolder(QFileInfo(path).path()); });
}
