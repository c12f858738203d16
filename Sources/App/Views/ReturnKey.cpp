// SPDX-License-Identifier: MIT
#include "Views/ReturnKey.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

bool isReturn(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease)
        return false;
    const auto key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

class ReturnKeyFilter final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (!isReturn(*event))
            return QObject::eventFilter(object, event);
        // An event that is ignored goes on to the parent, and in the end to the window.
        event->ignore();
        return true;
    }
};

} // namespace

void leaveReturnToWindow(QWidget& control)
{
    control.installEventFilter(new ReturnKeyFilter(&control));
}

#include "ReturnKey.moc"
