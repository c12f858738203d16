// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

#include <functional>

/// Makes `control` ignore Return and Enter, so that they reach the default button of its window. On
/// some desktops they press whatever has the focus otherwise.
void forwardReturnKey(QWidget& control);

/// An ordinary push button, whose title wraps where there is no room for it on one line. The space
/// bar presses it, Return does not; a click does not move the focus.
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

/// A checkable title with a chevron before it, which points down while the button is checked.
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

/// The Play button: large, as wide as its parent allows, with a play symbol before the title, and
/// filled with the accent colour. It is the default button of its window.
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
