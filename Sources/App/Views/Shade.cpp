// SPDX-License-Identifier: MIT
#include "Views/Shade.h"

#include "Views/SystemColors.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace {

constexpr auto opacityInLight = 0.22;
/// A dark window has less left to lose.
constexpr auto opacityInDark = 0.45;

/// Covers all of its parent and leaves every event to it.
class Shade final : public QWidget
{
    Q_OBJECT

public:
    explicit Shade(QWidget& window)
        : QWidget(&window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(window.size());
        window.installEventFilter(this);
        show();
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            resize(parentWidget()->size());
        return QWidget::eventFilter(object, event);
    }

    void paintEvent(QPaintEvent*) override
    {
        const auto opacity = SystemColors::isDark(palette()) ? opacityInDark : opacityInLight;
        QPainter(this).fillRect(rect(), SystemColors::withOpacity(Qt::black, opacity));
    }
};

} // namespace

void shadeWhileBlocked(QWidget& window, const QEvent& event)
{
    const auto blocks = event.type() == QEvent::WindowBlocked;
    if (!blocks && event.type() != QEvent::WindowUnblocked)
        return;
    auto* const shade = window.findChild<Shade*>(QString(), Qt::FindDirectChildrenOnly);
    if (blocks && !shade)
        new Shade(window);
    else if (!blocks)
        delete shade;
}

#include "Shade.moc"
