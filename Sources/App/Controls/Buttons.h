// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

#include <functional>

/// Makes `control` ignore Return and Enter, so that they press the default button of its window. On
/// some desktops they would press the focused control.
void forwardReturnKey(QWidget& control);

/// An ordinary push button, whose title wraps if it does not fit on one line. The space bar presses
/// it, Return does not. A click does not move the focus.
class BorderedButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BorderedButton(const QString& title, const std::function<void()>& action = {});

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
};

/// A bordered button with a red title, for an action that cannot be undone.
class DestructiveButton final : public BorderedButton
{
    Q_OBJECT

public:
    using BorderedButton::BorderedButton;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};

/// A checkable button without a bezel: a chevron, which points down while checked, and the title.
class DisclosureButton final : public BorderedButton
{
    Q_OBJECT

public:
    explicit DisclosureButton(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The large Play button, filled with the accent colour, with a symbol before the title. It is the
/// default button of its window.
class PlayButton final : public QPushButton
{
    Q_OBJECT

public:
    PlayButton(const QString& title, const std::function<void()>& action);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};
