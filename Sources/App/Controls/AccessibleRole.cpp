// SPDX-License-Identifier: MIT
#include "Controls/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

constexpr auto roleProperty = "accessibleRole";

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    const auto role = object->property(roleProperty);
    if (!role.isValid())
        return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget*>(object),
                                 static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(makeInterface); // Qt keeps it once.
    widget.setProperty(roleProperty, static_cast<int>(role));
}
