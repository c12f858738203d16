// SPDX-License-Identifier: MIT
#include "Views/Sheet.h"

#include "Views/BorderedButton.h"
#include "Views/FontChange.h"
#include "Views/Shade.h"
#include "Views/Stack.h"

#include <QEvent>
#include <QLayout>
#include <QShowEvent>

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

QSize Sheet::sizeHint() const
{
    // The content wraps, so its height follows from the fixed width and has to be asked for.
    return {sheetWidth, layout() ? layout()->totalHeightForWidth(sheetWidth) : 0};
}

QWidget* Sheet::doneRow()
{
    m_done = new BorderedButton(tr("Done"));
    m_done->setDefault(true);
    connect(m_done, &QPushButton::clicked, this, &QDialog::accept);
    return horizontalStack(defaultSpacing, {spacer(), m_done});
}

void Sheet::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Where no key that was meant for the window changes anything.
    if (m_done && !event->spontaneous())
        m_done->setFocus(Qt::OtherFocusReason);
}

bool Sheet::event(QEvent* event)
{
    const auto handled = QDialog::event(event);
    passOnFontChange(*this, *event);
    standBackWhileBlocked(*this, *event);
    if (event->type() == QEvent::LayoutRequest)
        setFixedHeight(sizeHint().height());
    return handled;
}
