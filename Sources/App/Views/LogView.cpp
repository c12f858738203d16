// SPDX-License-Identifier: MIT
#include "Views/LogView.h"

#include "AppModel.h"
#include "Process/LogStore.h"
#include "Views/BorderedButton.h"
#include "Views/Stack.h"
#include "Views/SystemColors.h"
#include "Views/TextBox.h"

#include <QBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr auto boxHeight = 180;
constexpr auto spacing = 6;
constexpr auto topPadding = 4;

/// What one slice takes over at most. Either takes a few milliseconds on a slow machine.
constexpr auto linesPerSlice = 500;
constexpr auto charactersPerSlice = 64 * 1024;

QColor boxTint(const QPalette&)
{
    return SystemColors::withOpacity(Qt::black, 0.06);
}

/// A line as it goes into the text: the characters that would end its paragraph break the line
/// within it instead, so that every line of the log stays one paragraph.
QString asOneParagraph(QString line)
{
    if (line.endsWith(u'\r'))
        line.chop(1);
    for (const auto separator : {u'\r', u'\u2029', u'\ufdd0', u'\ufdd1'})
        line.replace(QChar(separator), QChar(QChar::LineSeparator));
    return line;
}

} // namespace

LogView::LogView(AppModel& model)
    : m_log(model.log())
    , m_box(new TextBox(tr("Log"), boxHeight, boxTint))
    , m_edit(m_box->edit())
{
    auto* const copy = borderedButton(tr("Copy log"));
    connect(copy, &QPushButton::clicked, &model, &AppModel::copyLog);

    stackVertically(*this, spacing, 0,
                    {
                        m_box,
                        horizontalStack(defaultSpacing, {copy, StackItem::spacer()}),
                    });
    layout()->setContentsMargins(0, topPadding, 0, 0);

    m_nextSlice.setSingleShot(true);
    connect(&m_nextSlice, &QTimer::timeout, this, &LogView::catchUp);
    connect(&m_log, &LogStore::linesChanged, this, &LogView::catchUp);
    catchUp();
}

void LogView::catchUp()
{
    removeStaleLines();
    appendMissingLines();
    if (isUpToDate())
        m_nextSlice.stop();
    else
        m_nextSlice.start(0);
}

void LogView::removeStaleLines()
{
    const auto stale = std::clamp(m_log.firstLineNumber() - m_shownFirst, qint64{0}, m_shownCount);
    if (stale == 0)
        return;
    if (stale == m_shownCount) {
        m_edit.clear();
        m_shownCount = 0;
        return;
    }
    // The scroll bar counts lines as they are wrapped: what goes above the reader is taken off.
    auto& bar = *m_edit.verticalScrollBar();
    const auto firstKept = m_edit.document()->findBlockByNumber(static_cast<int>(stale));
    const auto position = bar.value() - firstKept.firstLineNumber();

    QTextCursor cursor(m_edit.document());
    cursor.setPosition(firstKept.position(), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    m_shownFirst += stale;
    m_shownCount -= stale;
    bar.setValue(std::max(0, position));
}

void LogView::appendMissingLines()
{
    if (m_shownCount == 0)
        m_shownFirst = m_log.firstLineNumber();
    const auto& lines = m_log.lines();
    auto next = m_shownFirst + m_shownCount - m_log.firstLineNumber();
    QStringList slice;
    for (qsizetype characters = 0;
         next < lines.size() && slice.size() < linesPerSlice && characters < charactersPerSlice;
         ++next) {
        slice.append(asOneParagraph(lines.at(next)));
        characters += slice.constLast().size();
    }
    if (slice.isEmpty())
        return;

    QTextCursor cursor(m_edit.document());
    cursor.movePosition(QTextCursor::End);
    if (m_shownCount > 0)
        cursor.insertBlock();
    cursor.insertText(slice.join(u'\n'));
    m_shownCount += slice.size();
}

bool LogView::isUpToDate() const
{
    return m_shownFirst == m_log.firstLineNumber() && m_shownCount == m_log.lines().size();
}
