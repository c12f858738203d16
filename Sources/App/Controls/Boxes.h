// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

class LongTextEdit;

/// A container with a tinted background and rounded corners.
class RoundedBox : public QWidget
{
    Q_OBJECT

public:
    /// Returns the colour of the background. Called for each repaint.
    using Tint = QColor (*)(const QPalette& palette);

    RoundedBox(double radius, Tint tint);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_radius;
    Tint m_tint;
};

/// A box with a long read-only text in a fixed-width font, which wraps and scrolls.
class TextBox final : public RoundedBox
{
    Q_OBJECT

public:
    /// `name` is for assistive technology. `height` is the height of the text without the padding.
    TextBox(const QString& name, int height, Tint tint);

    /// Shows `text` from its beginning. Does nothing if the text is unchanged.
    void setText(const QString& text);
    [[nodiscard]] LongTextEdit& edit() { return *m_edit; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LongTextEdit* m_edit;
    QString m_text;
};
