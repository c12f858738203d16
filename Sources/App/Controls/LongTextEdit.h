// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTimer>

/// A read-only text of any number of lines of any length, which can be selected and copied.
///
/// Added lines are inserted in slices of a few milliseconds, so that the window answers meanwhile.
/// Qt lays out a paragraph in one go, so a very long line becomes several paragraphs. They look
/// like one wrapped line, and are copied as one.
class LongTextEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    LongTextEdit();

    /// Adds lines at the end. The view does not scroll.
    void appendLines(const QStringList& lines);
    /// Removes the first `count` lines. The lines in view stay where they are, unless they are
    /// among the removed.
    void removeFirstLines(qsizetype count);
    /// The number of lines, those not inserted yet included.
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
    /// What is not in the document yet.
    QList<Paragraph> m_pending;
    QTimer m_sliceTimer;
};
