// SPDX-License-Identifier: MIT
#include "Views/SegmentedPicker.h"

#include "Views/ControlFace.h"
#include "Views/ReturnKey.h"
#include "Views/SystemColors.h"

#include <QBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

/// One segment: a radio button that looks like a raised plate while it is chosen.
class Segment final : public QRadioButton
{
public:
    explicit Segment(const QString& title)
        : QRadioButton(title)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        leaveReturnToWindow(*this);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const auto label = fontMetrics().size(Qt::TextSingleLine, text());
        return {
            label.width() + 2 * ControlFace::horizontalPadding,
            std::max(label.height() + 2 * ControlFace::verticalPadding, ControlFace::leastHeight)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        const auto face = QRectF(rect()).adjusted(2, 2, -2, -2);
        const auto radius = ControlFace::radius - 1.5;
        const auto text = palette().color(QPalette::WindowText);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        if (isChecked()) {
            painter.setBrush(SystemColors::accentUnderText(palette()));
            painter.drawRoundedRect(face, radius, radius);
        } else if (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) {
            painter.setBrush(SystemColors::withOpacity(text, isDown() ? 0.12 : 0.06));
            painter.drawRoundedRect(face, radius, radius);
        }
        painter.setPen(isChecked() ? QColor(Qt::white) : text);
        painter.drawText(rect(), Qt::AlignCenter, this->text());
        if (!ControlFace::showsFocus(option.state))
            return;
        if (isChecked()) {
            ControlFace::paintFocusRing(painter, face.adjusted(1.5, 1.5, -1.5, -1.5), radius - 1.5,
                                        Qt::white);
        } else {
            ControlFace::paintFocusRing(painter, face, radius, SystemColors::blue(palette()));
        }
    }
};

} // namespace

SegmentedPicker::SegmentedPicker(const QString& name, const QStringList& titles)
{
    setAccessibleName(name);
    auto* const row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    for (const auto& title : titles) {
        auto* const segment = new Segment(title);
        const auto index = static_cast<int>(m_segments.size());
        // Not clicked(): an assistive technology switches a segment over without a click.
        connect(segment, &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked)
                Q_EMIT currentChanged(index);
        });
        m_segments.push_back(segment);
        row->addWidget(segment);
    }
    setCurrent(0);
}

int SegmentedPicker::current() const
{
    const auto checked =
        std::find_if(m_segments.begin(), m_segments.end(),
                     [](const QRadioButton* segment) { return segment->isChecked(); });
    return static_cast<int>(checked - m_segments.begin());
}

void SegmentedPicker::setCurrent(int index)
{
    m_segments.at(static_cast<size_t>(index))->setChecked(true);
}

void SegmentedPicker::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ControlFace::paint(painter, rect(), QStyle::State_Enabled, palette());
}
