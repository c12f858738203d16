// SPDX-License-Identifier: MIT
#include "Views/AccessibleRoles.h"

#include "Views/ContentView.h"
#include "Views/LinkLabel.h"
#include "Views/SegmentedPicker.h"
#include "Views/StatusDot.h"

#include <QAccessibleWidget>

namespace {

/// A link that can be pressed, where a label can only be read.
class AccessibleLink final : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel& link)
        : QAccessibleWidget(&link, QAccessible::Link)
    {
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            static_cast<LinkLabel*>(widget())->open();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* ownInterface(const QString&, QObject* object)
{
    // A scroll area is only a nameless container of its own accord.
    if (auto* const window = qobject_cast<ContentView*>(object))
        return new QAccessibleWidget(window, QAccessible::Window);
    // Of all roles the one that is read out whenever it shows, wherever the keyboard is.
    if (auto* const status = qobject_cast<StatusDot*>(object))
        return new QAccessibleWidget(status, QAccessible::Notification);
    if (auto* const picker = qobject_cast<SegmentedPicker*>(object))
        return new QAccessibleWidget(picker, QAccessible::Grouping);
    if (auto* const link = qobject_cast<LinkLabel*>(object))
        return new AccessibleLink(*link);
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::installFactory(ownInterface);
}
