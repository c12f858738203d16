// SPDX-License-Identifier: MIT
#include "Views/LogView.h"

#include "AppModel.h"
#include "Process/LogStore.h"
#include "Views/BorderedButton.h"
#include "Views/LongTextEdit.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TextBox.h"

#include <algorithm>

namespace {

constexpr auto boxHeight = 180;
constexpr auto spacing = 6;
constexpr auto topPadding = 4;

QColor boxTint(const QPalette&)
{
    return SystemColors::withOpacity(Qt::black, 0.06);
}

} // namespace

LogView::LogView(AppModel& model)
    : m_log(model.log())
    , m_box(new TextBox(tr("Log"), boxHeight, boxTint))
    , m_edit(m_box->edit())
    , m_copy(new BorderedButton(tr("Copy log")))
    , m_firstLine(m_log.firstLineNumber())
{
    connect(m_copy, &QPushButton::clicked, &model, &AppModel::copyLog);

    stackVertically(*this, spacing, QMargins(0, topPadding, 0, 0), {m_box, leading(m_copy)});

    connect(&m_log, &LogStore::linesChanged, this, &LogView::catchUp);
    catchUp();
}

void LogView::followInTabOrder(QWidget& widget)
{
    setTabOrder(&widget, &m_edit);
    setTabOrder(&m_edit, m_copy);
}

void LogView::catchUp()
{
    const auto& lines = m_log.lines();
    const auto stale = m_log.firstLineNumber() - m_firstLine;
    m_edit.removeFirstLines(std::min(stale, qint64{m_edit.lineCount()}));
    m_firstLine = m_log.firstLineNumber();
    m_edit.appendLines(lines.mid(m_edit.lineCount()));
}
