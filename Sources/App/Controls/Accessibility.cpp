// SPDX-License-Identifier: MIT
#include "Controls/Accessibility.h"

#include <QAccessibleWidget>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr auto roleProperty = "accessibleRole";

QAccessibleInterface* makeRole(const QString&, QObject* object)
{
    const auto role = object->property(roleProperty);
    if (!role.isValid())
        return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget*>(object),
                                 static_cast<QAccessible::Role>(role.toInt()));
}

class AccessibleButton final : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QPushButton& button)
        : QAccessibleWidget(&button, QAccessible::Button)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const auto text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? button().text() : text;
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        auto state = QAccessibleWidget::state();
        state.pressed = button().isDown();
        state.defaultButton = button().isDefault();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        const auto names = QAccessibleWidget::actionNames();
        return button().isEnabled() ? QStringList{pressAction()} + names : names;
    }

    void doAction(const QString& name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        // On the next event-loop iteration: the action may ask a question, and the caller waits
        // for the end of this function.
        QTimer::singleShot(0, &button(), [button = &button()] {
            if (button->isVisible())
                button->click();
        });
    }

private:
    [[nodiscard]] QPushButton& button() const { return *static_cast<QPushButton*>(widget()); }
};

QAccessibleInterface* makeButton(const QString&, QObject* object)
{
    auto* const button = qobject_cast<QPushButton*>(object);
    return button && !button->isCheckable() ? new AccessibleButton(*button) : nullptr;
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(makeRole); // Qt keeps it once.
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void installAccessibleButtons()
{
    QAccessible::installFactory(makeButton);
}
