// SPDX-License-Identifier: MIT
#include "WidgetDesktop.h"

#include "Views/TypeScale.h"

#include <QApplication>
#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace {

constexpr auto alertIconSize = 64;
constexpr auto alertTextWidth = 300;
constexpr auto alertPadding = 20;

/// The window that the player is looking at, a sheet before the main window.
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

QDBusMessage showItems(const QString& path)
{
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("/org/freedesktop/FileManager1"),
                                                  QStringLiteral("org.freedesktop.FileManager1"),
                                                  QStringLiteral("ShowItems"));
    message << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    return message;
}

/// Gives an alert its words and its looks.
void setUp(QMessageBox& alert, const QString& title, const QString& message)
{
    alert.setWindowTitle(QCoreApplication::applicationName());
    alert.setWindowModality(Qt::WindowModal);
    alert.setIconPixmap(QApplication::windowIcon().pixmap(alertIconSize));
    alert.setTextFormat(Qt::PlainText);
    alert.setText(title);
    alert.setInformativeText(message);
    // The labels of a message box are its own affair; by these names it lets them be found.
    if (auto* const label = alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        label->setFont(textFont(TextStyle::headline));
    if (auto* const label = alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        label->setMinimumWidth(alertTextWidth);
    // The words before have built the layout anew.
    alert.layout()->setContentsMargins(alertPadding, alertPadding, alertPadding, alertPadding);
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
    const auto parent = QFileInfo(path).path();
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolder(parent);
        return;
    }
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(showItems(path)), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [this, parent](QDBusPendingCallWatcher* call) {
                         call->deleteLater();
                         if (call->isError())
                             openFolder(parent);
                     });
}
