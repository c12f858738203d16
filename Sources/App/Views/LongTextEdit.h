// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTimer>

/// A text to read and select whose lines may be of any number and length.
///
/// It takes over what is added in slices short enough that the window answers at once meanwhile.
/// A paragraph is laid out in one go, so that a very long line becomes several: these look like one
/// that wraps, and what is copied has no line feed between them.
class LongTextEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    LongTextEdit();

    /// Adds lines at the end. The view stays where it is.
    void appendLines(const QStringList& lines);
    /// Takes away the first `count` lines. What is read stays in view, unless it goes itself.
    void removeFirstLines(qsizetype count);
    /// The number of lines, whether they have been taken over already or wait for that.
    [[nodiscard]] qsizetype lineCount() const;

    /// The lines taken over so far, joined.
    [[nodiscard]] QString text() const;

protected:
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void removeShownLines(qsizetype count);
    void takeSlice();
    /// The next paragraph's worth of the first line that waits.
    [[nodiscard]] QString takePiece();
    [[nodiscard]] QString textBetween(int from, int to) const;

    /// The lines that are in the document, the one that has only begun among them.
    qsizetype m_shownLines = 0;
    QStringList m_waiting;
    /// How much of the first line that waits is in the document.
    qsizetype m_shownOfFirst = 0;
    /// Takes the next slice once the events that wait have had their turn.
    QTimer m_nextSlice;
};
