// SPDX-License-Identifier: MIT
#include "Views/LongTextEdit.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

/// What one slice takes over at most. Either takes a few milliseconds on a slow machine.
constexpr auto paragraphsPerSlice = 500;
constexpr auto charactersPerSlice = 64 * 1024;
/// The longest paragraph. A few milliseconds lay it out, also with the letters of other scripts.
constexpr auto longestParagraph = 4096;
/// How far before its greatest length a paragraph may end for the sake of a whole word.
constexpr auto longestWord = 128;

/// The state of a paragraph that goes on with the line of the one before it.
constexpr auto continuesLine = 1;

/// A line without the characters that would end its paragraph: they break the line within it.
QString withoutParagraphEnds(QString line)
{
    if (line.endsWith(u'\r'))
        line.chop(1);
    for (const auto separator : {u'\r', u'\u2029', u'\ufdd0', u'\ufdd1'})
        line.replace(QChar(separator), QChar(QChar::LineSeparator));
    return line;
}

/// How much of `text` the next paragraph takes: whole words, or at least whole letters.
qsizetype paragraphLength(QStringView text)
{
    if (text.size() <= longestParagraph)
        return text.size();
    const auto searched = text.mid(longestParagraph - longestWord, longestWord + 1);
    for (const auto unit : {QTextBoundaryFinder::Word, QTextBoundaryFinder::Grapheme}) {
        QTextBoundaryFinder finder(unit, searched);
        finder.setPosition(longestWord);
        if (finder.isAtBoundary() || finder.toPreviousBoundary() > 0)
            return longestParagraph - longestWord + finder.position();
    }
    return longestParagraph;
}

} // namespace

LongTextEdit::LongTextEdit()
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_nextSlice.setSingleShot(true);
    connect(&m_nextSlice, &QTimer::timeout, this, &LongTextEdit::takeSlice);
}

void LongTextEdit::appendLines(const QStringList& lines)
{
    m_waiting += lines;
    if (!m_nextSlice.isActive())
        takeSlice();
}

qsizetype LongTextEdit::lineCount() const
{
    return m_shownLines + m_waiting.size() - (m_shownOfFirst > 0 ? 1 : 0);
}

void LongTextEdit::removeFirstLines(qsizetype count)
{
    if (count == 0)
        return;
    if (count < m_shownLines) {
        removeShownLines(count);
        return;
    }
    if (m_shownOfFirst > 0)
        m_waiting.removeFirst();
    m_waiting.remove(0, std::min(count - m_shownLines, m_waiting.size()));
    m_shownOfFirst = 0;
    m_shownLines = 0;
    clear();
}

void LongTextEdit::removeShownLines(qsizetype count)
{
    auto firstKept = document()->firstBlock();
    for (auto lines = count; lines > 0;) {
        firstKept = firstKept.next();
        if (firstKept.userState() != continuesLine)
            --lines;
    }
    // The scroll bar counts lines as they are wrapped: what goes above the reader is taken off.
    auto& bar = *verticalScrollBar();
    const auto position = bar.value() - firstKept.firstLineNumber();

    QTextCursor cursor(document());
    cursor.setPosition(firstKept.position(), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    m_shownLines -= count;
    bar.setValue(std::max(0, position));
}

void LongTextEdit::takeSlice()
{
    QStringList paragraphs;
    QList<int> states;
    const auto isFirst = m_shownLines == 0;
    for (qsizetype characters = 0; !m_waiting.isEmpty() && paragraphs.size() < paragraphsPerSlice &&
                                   characters < charactersPerSlice;) {
        states.append(m_shownOfFirst > 0 ? continuesLine : 0);
        paragraphs.append(takePiece());
        characters += paragraphs.constLast().size();
    }
    if (!paragraphs.isEmpty()) {
        QTextCursor cursor(document());
        cursor.movePosition(QTextCursor::End);
        auto block = cursor.block();
        cursor.insertText((isFirst ? QString() : QStringLiteral("\n")) + paragraphs.join(u'\n'));
        if (!isFirst)
            block = block.next();
        for (const auto state : states) {
            block.setUserState(state);
            block = block.next();
        }
    }
    if (m_waiting.isEmpty())
        m_nextSlice.stop();
    else
        m_nextSlice.start(0);
}

QString LongTextEdit::takePiece()
{
    if (m_shownOfFirst == 0) {
        m_waiting.first() = withoutParagraphEnds(m_waiting.constFirst());
        ++m_shownLines;
    }
    const auto rest = QStringView(m_waiting.constFirst()).mid(m_shownOfFirst);
    const auto length = paragraphLength(rest);
    auto piece = rest.first(length).toString();
    m_shownOfFirst += length;
    if (length == rest.size()) {
        m_waiting.removeFirst();
        m_shownOfFirst = 0;
    }
    return piece;
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
