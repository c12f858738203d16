// SPDX-License-Identifier: MIT
#include "Controls/LongTextEdit.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

/// The limits of a slice. Each takes a few milliseconds on a slow machine.
constexpr auto maxParagraphsPerSlice = 500;
constexpr auto maxCharactersPerSlice = 64 * 1024;
/// In characters. Laid out in a few milliseconds in any script.
constexpr auto maxParagraphLength = 4096;
/// How much shorter a paragraph may be so that it ends with a whole word.
constexpr auto maxWordLength = 128;

/// The user state of a text block that continues the line of the block before it.
constexpr auto continuesLine = 1;

/// Replaces paragraph separators by line separators, and removes a carriage return at the end.
QString withoutParagraphEnds(QString line)
{
    if (line.endsWith(u'\r'))
        line.chop(1);
    for (const auto separator : {u'\r', u'\u2029', u'\ufdd0', u'\ufdd1'})
        line.replace(QChar(separator), QChar(QChar::LineSeparator));
    return line;
}

/// Returns the length of the first paragraph of `text`. Cuts between words, else between graphemes.
qsizetype paragraphLength(QStringView text)
{
    if (text.size() <= maxParagraphLength)
        return text.size();
    const auto searched = text.mid(maxParagraphLength - maxWordLength, maxWordLength + 1);
    for (const auto unit : {QTextBoundaryFinder::Word, QTextBoundaryFinder::Grapheme}) {
        QTextBoundaryFinder finder(unit, searched);
        finder.setPosition(maxWordLength);
        if (finder.isAtBoundary() || finder.toPreviousBoundary() > 0)
            return maxParagraphLength - maxWordLength + finder.position();
    }
    return maxParagraphLength;
}

} // namespace

LongTextEdit::LongTextEdit()
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_sliceTimer.setSingleShot(true);
    connect(&m_sliceTimer, &QTimer::timeout, this, &LongTextEdit::insertSlice);
}

void LongTextEdit::appendLines(const QStringList& lines)
{
    m_lineCount += lines.size();
    for (const auto& line : lines) {
        const auto text = withoutParagraphEnds(line);
        qsizetype start = 0;
        do {
            const auto length = paragraphLength(QStringView(text).mid(start));
            m_pending.append({text.mid(start, length), start > 0});
            start += length;
        } while (start < text.size());
    }
    if (!m_sliceTimer.isActive())
        insertSlice();
}

void LongTextEdit::insertSlice()
{
    const auto isFirst = m_insertedLines == 0;
    QString text;
    qsizetype count = 0;
    while (count < std::min<qsizetype>(m_pending.size(), maxParagraphsPerSlice) &&
           text.size() < maxCharactersPerSlice) {
        if (count > 0 || !isFirst)
            text += u'\n';
        text += m_pending.at(count).text;
        ++count;
    }

    auto block = document()->lastBlock();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
    if (!isFirst)
        block = block.next();
    for (qsizetype i = 0; i < count; ++i) {
        const auto continues = m_pending.at(i).continuesLine;
        block.setUserState(continues ? continuesLine : 0);
        m_insertedLines += continues ? 0 : 1;
        block = block.next();
    }
    m_pending.remove(0, count);
    if (!m_pending.isEmpty())
        m_sliceTimer.start(0);
}

void LongTextEdit::removeFirstLines(qsizetype count)
{
    if (count == 0)
        return;
    m_lineCount -= count;
    if (count < m_insertedLines) {
        removeInsertedLines(count);
        return;
    }
    auto lines = count - m_insertedLines;
    while (!m_pending.isEmpty() && (m_pending.constFirst().continuesLine || lines > 0)) {
        if (!m_pending.constFirst().continuesLine)
            --lines;
        m_pending.removeFirst();
    }
    m_insertedLines = 0;
    clear();
}

void LongTextEdit::removeInsertedLines(qsizetype count)
{
    auto firstKept = document()->firstBlock();
    for (auto lines = count; lines > 0;) {
        firstKept = firstKept.next();
        if (firstKept.userState() != continuesLine)
            --lines;
    }
    // The scroll bar counts wrapped lines.
    auto& bar = *verticalScrollBar();
    const auto position = bar.value() - firstKept.firstLineNumber();

    QTextCursor cursor(document());
    cursor.setPosition(firstKept.position(), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    m_insertedLines -= count;
    bar.setValue(std::max(0, position));
}

QString LongTextEdit::text() const
{
    return textBetween(0, document()->characterCount() - 1);
}

QMimeData* LongTextEdit::createMimeDataFromSelection() const
{
    const auto cursor = textCursor();
    auto* const copied = new QMimeData;
    copied->setText(textBetween(cursor.selectionStart(), cursor.selectionEnd()));
    return copied;
}

QString LongTextEdit::textBetween(int from, int to) const
{
    QString result;
    result.reserve(to - from);
    for (auto block = document()->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        if (block.position() > from && block.userState() != continuesLine)
            result += u'\n';
        const auto start = std::max(0, from - block.position());
        result += QStringView(block.text()).mid(start, to - block.position() - start);
    }
    return result.replace(QChar(QChar::LineSeparator), u'\n');
}
