// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTimer>

/// A read-only text of any number of lines of any length, which can be selected and copied.
///
/// To keep the window responsive, added lines are inserted in slices of a few milliseconds, and a
/// very long line becomes several paragraphs, because Qt lays out a paragraph at once. They look
/// like one wrapped line, and are copied as one.
class LongTextEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    LongTextEdit();

    /// Adds lines at the end. The view does not scroll.
    void appendLines(const QStringList& lines);
    /// Removes the first `count` lines. The remaining lines in view do not move.
    void removeFirstLines(qsizetype count);
    /// The number of lines, including those not inserted yet.
    [[nodiscard]] qsizetype lineCount() const { return m_lineCount; }

    /// The lines inserted so far, joined by line feeds.
    [[nodiscard]] QString text() const;

protected:
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    struct Paragraph
    {
        QString text;
        bool continuesLine;
    };

    void insertSlice();
    void removeInsertedLines(qsizetype count);
    [[nodiscard]] QString textBetween(int from, int to) const;

    qsizetype m_lineCount = 0;
    /// The number of lines that have at least one paragraph in the document.
    qsizetype m_insertedLines = 0;
    /// The paragraphs still to be inserted.
    QList<Paragraph> m_pending;
    QTimer m_sliceTimer;
};
