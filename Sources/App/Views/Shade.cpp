// SPDX-License-Identifier: MIT
#include "Views/Shade.h"

#include "Views/SystemColors.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTimer>
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

Shade* shadeOf(const QWidget& window)
{
    return window.findChild<Shade*>(QString(), Qt::FindDirectChildrenOnly);
}

void activateFrontWindow()
{
    if (auto* const front = QApplication::activeModalWidget())
        front->activateWindow();
}

} // namespace

void standBackWhileBlocked(QWidget& window, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::WindowBlocked:
        if (!shadeOf(window))
            new Shade(window);
        break;
    case QEvent::WindowUnblocked:
        delete shadeOf(window);
        break;
    case QEvent::WindowActivate:
        // Not at once: the request has to be younger than the activation that it answers.
        if (auto* const shade = shadeOf(window))
            QTimer::singleShot(0, shade, activateFrontWindow);
        break;
    default:
        break;
    }
}

#include "Shade.moc"
