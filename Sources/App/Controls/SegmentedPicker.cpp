// SPDX-License-Identifier: MIT
#include "Controls/SegmentedPicker.h"

#include "Controls/Accessibility.h"
#include "Controls/Buttons.h"
#include "Controls/ControlPainter.h"
#include "Controls/SystemColors.h"

#include <QBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>

namespace {

/// A radio button drawn as a plate, which is filled while checked.
class Segment final : public QRadioButton
{
public:
    explicit Segment(const QString& title)
        : QRadioButton(title)
    {
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        forwardReturnKey(*this);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const auto label = fontMetrics().size(Qt::TextSingleLine, text());
        const auto width = label.width() + 2 * ControlPainter::horizontalPadding;
        return {width, heightForWidth(width)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {ControlPainter::minTitleWidth(text(), font()), sizeHint().height()};
    }
    [[nodiscard]] int heightForWidth(int width) const override
    {
        return ControlPainter::titleHeight(text(), font(), width);
    }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        const auto textColor = palette().color(QPalette::WindowText);
        const auto plate = QRectF(rect()).adjusted(2, 2, -2, -2);
        constexpr auto radius = ControlPainter::cornerRadius - 1.5;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (isChecked()) {
            ControlPainter::paintRoundedRect(painter, plate, radius, Qt::NoPen,
                                             SystemColors::accentUnderText(palette()));
        } else if (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) {
            ControlPainter::paintRoundedRect(
                painter, plate, radius, Qt::NoPen,
                SystemColors::withOpacity(textColor, isDown() ? 0.12 : 0.06));
        }
        ControlPainter::paintTitle(painter, rect(), layoutDirection(), text(),
                                   isChecked() ? QColor(Qt::white) : textColor);
        if (!ControlPainter::showsFocus(option.state))
            return;
        if (isChecked())
            ControlPainter::paintFocusRing(painter, plate.adjusted(1.5, 1.5, -1.5, -1.5),
                                           radius - 1.5, Qt::white);
        else
            ControlPainter::paintFocusRing(painter, plate, radius,
                                           SystemColors::focusRing(palette()));
    }
};

} // namespace

SegmentedPicker::SegmentedPicker(const QString& name, const QStringList& titles)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(name);
    auto* const row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    for (const auto& title : titles) {
        auto* const segment = new Segment(title);
        const auto index = static_cast<int>(m_segments.size());
        // Not clicked(): assistive technology toggles a segment without a click.
        connect(segment, &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked)
                Q_EMIT currentChanged(index);
        });
        m_segments.push_back(segment);
        row->addWidget(segment);
    }
    setCurrent(0);
}

void SegmentedPicker::setCurrent(int index)
{
    m_segments.at(static_cast<size_t>(index))->setChecked(true);
}

void SegmentedPicker::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ControlPainter::paintBezel(painter, rect(), QStyle::State_Enabled, palette());
}
