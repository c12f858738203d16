// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// A thin line between two groups of controls.
class Divider final : public QWidget
{
    Q_OBJECT

public:
    Divider();

protected:
    void paintEvent(QPaintEvent* event) override;
};
