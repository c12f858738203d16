// SPDX-License-Identifier: MIT
#include "Views/Sheet.h"

#include "Views/FontChange.h"
#include "Views/Stack.h"

#include <QEvent>
#include <QLayout>
#include <QPushButton>

namespace {

constexpr auto sheetWidth = 440;

} // namespace

Sheet::Sheet(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    setFixedWidth(sheetWidth);
}

QPushButton* Sheet::button(const QString& title)
{
    auto* const button = new QPushButton(title);
    button->setAutoDefault(false);
    return button;
}

QWidget* Sheet::doneRow()
{
    auto* const done = button(tr("Done"));
    done->setDefault(true);
    done->setFocus();
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    return horizontalStack(defaultSpacing, {StackItem::spacer(), done});
}

bool Sheet::event(QEvent* event)
{
    const auto handled = QDialog::event(event);
    passOnFontChange(*this, *event);
    // The content wraps, so its height follows from the fixed width and has to be asked for.
    if (event->type() == QEvent::LayoutRequest && layout())
        setFixedHeight(layout()->heightForWidth(sheetWidth));
    return handled;
}
