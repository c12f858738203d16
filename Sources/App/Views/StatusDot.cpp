// SPDX-License-Identifier: MIT
#include "Views/StatusDot.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace {

/// To assistive technology the dot is a notice: of all roles the one that is read out whenever it
/// shows, wherever the keyboard is.
QAccessibleInterface* noticeInterface(const QString& className, QObject* object)
{
    if (className != QLatin1String("StatusDot"))
        return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Notification);
}

} // namespace

StatusDot::StatusDot(Color initial)
    : m_color(initial)
{
    QAccessible::installFactory(noticeInterface);
    setFixedSize(10, 10);
}

void StatusDot::setStatus(Color status, const QString& meaning)
{
    if (m_color != status) {
        m_color = status;
        update();
    }
    if (accessibleName() != meaning) {
        setAccessibleName(meaning);
        if (isVisible())
            announce();
    }
}

void StatusDot::announce()
{
    // Qt keeps an alert from the accessibility bus of Linux; there it is the showing that counts.
    for (const auto type : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    }
}

void StatusDot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color());
    painter.drawEllipse(rect());
}
