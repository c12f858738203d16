// SPDX-License-Identifier: MIT
#include "Controls/Sheet.h"

#include "Controls/Buttons.h"
#include "Controls/Dimmer.h"
#include "Controls/ScreenFit.h"
#include "Controls/ScrollColumn.h"
#include "Controls/SystemColors.h"
#include "Controls/TypeScale.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>

namespace {

constexpr auto padding = 20;

} // namespace

Sheet::Sheet(const QString& title, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_content(new ScrollColumn)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    setFixedWidth(contentWidth + 2 * padding);
    //: The button that closes a sheet.
    auto* const done = new BorderedButton(tr("Done"), [this] { accept(); });
    done->setDefault(true);
    m_bottomRow = horizontalStack({}, {spacer, done});
    stackVertically(*this, {.spacing = 0}, {m_content, m_bottomRow});
    new Dimmer(*this);
    // The shortcuts of the main window do not work while it is blocked.
    new QShortcut(QKeySequence::Close, this, [this] { reject(); });
    new QShortcut(QKeySequence::Quit, this, &QCoreApplication::quit);
    // A key that was meant for the main window then changes no setting.
    done->setFocus(Qt::OtherFocusReason);
}

void Sheet::setContent(int spacing, const QList<StackItem>& children)
{
    m_content->setColumn(spacing, {padding, padding, padding, 0}, children);
    m_bottomRow->layout()->setContentsMargins(padding, spacing, padding, padding);
    // Otherwise they would cover the edge of the sheet.
    m_content->viewport()->setAutoFillBackground(false);
    m_content->widget()->setAutoFillBackground(false);
    fitToScreen(*this, [this](QSize available) {
        m_available = available;
        fit();
    });
}

QSize Sheet::sizeHint() const
{
    // The texts wrap, so the height depends on the width.
    const auto width = minimumWidth();
    const auto height = m_content->columnHeight(width) + m_bottomRow->sizeHint().height();
    return {width, std::min(height, m_available.height())};
}

void Sheet::fit()
{
    setFixedHeight(sizeHint().height());
}

bool Sheet::event(QEvent* event)
{
    const auto handled = QDialog::event(event);
    propagateFontChange(*this, *event);
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return handled;
}

void Sheet::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    if (m_content->verticalScrollBar()->maximum() > 0)
        QPainter(this).fillRect(0, m_bottomRow->y(), width(), 1, SystemColors::line(palette()));
}

void Sheet::keyPressEvent(QKeyEvent* event)
{
    QDialog::keyPressEvent(event);
    if (!event->isAccepted())
        m_content->scrollByKey(*event);
}

bool Sheet::focusNextPrevChild(bool next)
{
    const auto moved = QDialog::focusNextPrevChild(next);
    if (m_content->isAncestorOf(focusWidget()))
        m_content->ensureWidgetVisible(focusWidget());
    return moved;
}
