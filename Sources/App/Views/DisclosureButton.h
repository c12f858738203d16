// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A title with an angle before it that turns down while the button is checked and what it
/// discloses is shown.
class DisclosureButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit DisclosureButton(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};
