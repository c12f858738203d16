// SPDX-License-Identifier: MIT
#include "Views/TextFit.h"

#include "Controls/Buttons.h"
#include "Controls/Dimmer.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFocusFrame>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Rounding to whole pixels, at a fractional scale too, may take as much from a text.
constexpr auto tolerance = 1;

QString described(const QWidget& widget)
{
    auto text = widget.property("text").toString();
    if (text.isEmpty())
        text = widget.accessibleName();
    return u"%1 \"%2\" (%3 \u00d7 %4)"_s
        .arg(QString::fromLatin1(widget.metaObject()->className()), text.left(60))
        .arg(widget.width())
        .arg(widget.height());
}

/// The size of a text that wraps in lines of `width`, and inside a word where it `mayBreakWords`.
QSize wrappedSize(const QString& text, const QFont& font, int width, bool mayBreakWords)
{
    auto lines = text;
    QTextLayout layout(lines.replace(u'\n', QChar::LineSeparator), font);
    QTextOption option;
    option.setWrapMode(mayBreakWords ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                     : QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    auto widest = 0.0;
    auto height = 0.0;
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        widest = std::max(widest, line.naturalTextWidth());
        height += line.height();
    }
    layout.endLayout();
    return {static_cast<int>(std::floor(widest)), static_cast<int>(std::floor(height))};
}

QSize htmlSize(const QString& html, const QFont& font, int width)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
    document.setTextWidth(width);
    return {static_cast<int>(std::floor(document.idealWidth())),
            static_cast<int>(std::floor(document.size().height()))};
}

/// The space that a button has for its title, which begins after `before` and leaves `around` free.
QSize titleSpace(const QWidget& button, int before, int around)
{
    return button.size() - QSize(before + 2 * around, 2 * around);
}

/// Checks the one text of a label or button against the space for it.
class TextFaults
{
public:
    explicit TextFaults(QStringList& faults)
        : m_faults(faults)
    {
    }

    void check(const QWidget& widget)
    {
        if (const auto* const label = qobject_cast<const QLabel*>(&widget))
            checkLabel(*label);
        else if (const auto* const combo = qobject_cast<const QComboBox*>(&widget))
            checkEntries(*combo);
        else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            checkButton(*button);
    }

private:
    void checkLabel(const QLabel& label)
    {
        const auto space = label.contentsRect().size();
        if (label.textFormat() == Qt::RichText)
            expect(label, htmlSize(label.text(), label.font(), space.width()), space);
        else if (label.wordWrap())
            expect(label, wrappedSize(label.text(), label.font(), space.width(), true), space);
        else
            expect(label, label.fontMetrics().size(0, label.text()), space);
    }

    void checkButton(const QAbstractButton& button)
    {
        // The title must not touch the edge. A disclosure and Play have a symbol before theirs.
        const auto oneLine = button.fontMetrics().size(Qt::TextSingleLine, button.text());
        if (qobject_cast<const PlayButton*>(&button)) {
            expect(button, oneLine, titleSpace(button, 16 + 8, 4));
        } else if (qobject_cast<const DisclosureButton*>(&button)) {
            expect(button, oneLine, titleSpace(button, 18, 0));
        } else {
            const auto space = titleSpace(button, 0, 3);
            expect(button, wrappedSize(button.text(), button.font(), space.width(), false), space);
        }
    }

    /// A combo box cuts what does not fit and ends it in an ellipsis.
    void checkEntries(const QComboBox& combo)
    {
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        const auto field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, &combo);
        for (auto i = 0; i < combo.count(); ++i)
            expect(combo, combo.fontMetrics().size(Qt::TextSingleLine, combo.itemText(i)),
                   field.size() - QSize(2, 0));
    }

    void expect(const QWidget& widget, const QSize& needed, const QSize& space)
    {
        if (needed.width() <= space.width() + tolerance &&
            needed.height() <= space.height() + tolerance)
            return;
        m_faults.append(u"%1 has %2 \u00d7 %3 for a text of %4 \u00d7 %5."_s.arg(described(widget))
                            .arg(space.width())
                            .arg(space.height())
                            .arg(needed.width())
                            .arg(needed.height()));
    }

    QStringList& m_faults;
};

bool isInLayout(const QObject* object)
{
    const auto* const widget = qobject_cast<const QWidget*>(object);
    return widget && widget->isVisible() && !widget->isWindow() &&
           !qobject_cast<const QFocusFrame*>(widget) && !qobject_cast<const Dimmer*>(widget);
}

bool scrolls(const QWidget& widget)
{
    return qobject_cast<const QAbstractScrollArea*>(&widget) ||
           qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
}

void checkChildren(const QWidget& parent, QStringList& faults)
{
    QList<const QWidget*> earlier;
    for (const auto* const child : parent.children()) {
        if (!isInLayout(child))
            continue;
        const auto& widget = static_cast<const QWidget&>(*child);
        if (!parent.rect().contains(widget.geometry()))
            faults.append(described(widget) + u" reaches beyond "_s + described(parent) + u'.');
        for (const auto* const other : earlier) {
            if (other->geometry().intersects(widget.geometry()))
                faults.append(described(widget) + u" overlaps "_s + described(*other) + u'.');
        }
        earlier.append(&widget);
    }
}

} // namespace

QStringList layoutFaults(const QWidget& root)
{
    QStringList faults;
    TextFaults texts(faults);
    auto widgets = root.findChildren<QWidget*>();
    widgets.prepend(const_cast<QWidget*>(&root));
    for (const auto* const widget : widgets) {
        if (!widget->isVisible() || widget->window() != root.window())
            continue;
        texts.check(*widget);
        if (!scrolls(*widget))
            checkChildren(*widget, faults);
        if (const auto* const area = qobject_cast<const QScrollArea*>(widget);
            area && area->horizontalScrollBar()->maximum() > 0)
            faults.append(described(*area) + u" is too narrow for what it scrolls."_s);
    }
    return faults;
}
