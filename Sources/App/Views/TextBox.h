// SPDX-License-Identifier: MIT
#pragma once

#include "Views/RoundedBox.h"

class LongTextEdit;

/// A tinted box that shows long text of fixed-width letters: it wraps, scrolls within its height
/// and can be selected with the mouse and the keyboard, but not changed.
class TextBox final : public RoundedBox
{
    Q_OBJECT

public:
    /// `name` is what the text is, for assistive technology. `height` is that of the text alone; a
    /// padding of 6 goes around it.
    TextBox(const QString& name, int height, Tint tint);

    /// Shows `text` from its beginning, unless it is shown already.
    void setText(const QString& text);
    [[nodiscard]] LongTextEdit& edit() { return *m_edit; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LongTextEdit* m_edit;
    /// The text that is shown, or is on its way into the box.
    QString m_text;
};
