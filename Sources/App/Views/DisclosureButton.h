// SPDX-License-Identifier: MIT
#pragma once

#include "Views/BorderedButton.h"

/// A title with an angle before it that turns down while the button is checked and what it
/// discloses is shown.
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
