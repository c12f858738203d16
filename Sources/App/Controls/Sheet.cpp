// SPDX-License-Identifier: MIT
#include "Controls/Sheet.h"

#include "Controls/Buttons.h"
#include "Controls/Dimmer.h"
#include "Controls/TypeScale.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QShortcut>

Sheet::Sheet(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    setFixedWidth(440);
    new Dimmer(*this);
    // The window's own shortcuts do not work while it is blocked.
    new QShortcut(QKeySequence::Close, this, [this] { reject(); });
    new QShortcut(QKeySequence::Quit, this, &QCoreApplication::quit);
}

QSize Sheet::sizeHint() const
{
    // The texts wrap, so the height follows from the width.
    return {minimumWidth(), layout() ? layout()->totalHeightForWidth(minimumWidth()) : 0};
}

void Sheet::setContent(int spacing, const QList<StackItem>& children)
{
    //: The button that closes a sheet.
    auto* const done = new BorderedButton(tr("Done"), [this] { accept(); });
    done->setDefault(true);
    stackVertically(*this, {.spacing = spacing, .padding = 20},
                    children + QList<StackItem>{horizontalStack({}, {spacer, done})});
    // Here a key that was meant for the window changes nothing.
    done->setFocus(Qt::OtherFocusReason);
}

bool Sheet::event(QEvent* event)
{
    const auto handled = QDialog::event(event);
    propagateFontChange(*this, *event);
    if (event->type() == QEvent::LayoutRequest)
        setFixedHeight(sizeHint().height());
    return handled;
}
