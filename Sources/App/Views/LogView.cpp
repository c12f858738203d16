// SPDX-License-Identifier: MIT
#include "Views/LogView.h"

#include "Controls/Boxes.h"
#include "Controls/Buttons.h"
#include "Controls/LongTextEdit.h"
#include "Controls/Stack.h"
#include "Controls/SystemColors.h"
#include "Model/AppModel.h"
#include "Process/LogStore.h"

#include <QLayout>

LogView::LogView(AppModel& model)
    : m_copy(new BorderedButton(tr("Copy log"), [&model] { model.copyLog(); }))
{
    auto* const box = new TextBox(
        //: What a screen reader calls the box with the lines of the log.
        tr("Log"), 180, [](const QPalette&) { return SystemColors::withOpacity(Qt::black, 0.06); });
    m_edit = &box->edit();
    stackVertically(*this, {.spacing = 6}, {box, {m_copy, Qt::AlignLeading}});
    layout()->setContentsMargins(0, 4, 0, 0);

    m_edit->appendLines(model.log().lines());
    connect(&model.log(), &LogStore::linesChanged, this, &LogView::showNewLines);
}

void LogView::followInTabOrder(QWidget& widget)
{
    setTabOrder(&widget, m_edit);
    setTabOrder(m_edit, m_copy);
}

void LogView::showNewLines(qsizetype dropped, const QStringList& added)
{
    m_edit->removeFirstLines(dropped);
    m_edit->appendLines(added);
}
