// SPDX-License-Identifier: MIT
#include "Views/ScreenFit.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

ScreenFit::ScreenFit(QWidget& window, QSize least)
    : QObject(&window)
    , m_window(window)
    , m_least(least)
{
    window.installEventFilter(this);
    fit();
}

bool ScreenFit::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        connect(m_window.windowHandle(), &QWindow::screenChanged, this, &ScreenFit::follow,
                Qt::UniqueConnection);
        follow(m_window.screen());
        break;
    case QEvent::Move:
        // The desktop puts its frame around the window only after it has been shown.
        fit();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void ScreenFit::follow(QScreen* screen)
{
    if (m_screen)
        disconnect(m_screen, nullptr, this, nullptr);
    m_screen = screen;
    if (screen)
        connect(screen, &QScreen::availableGeometryChanged, this, &ScreenFit::fit);
    fit();
}

void ScreenFit::fit()
{
    const auto* const handle = m_window.windowHandle();
    const auto frame = handle ? handle->frameMargins() : QMargins();
    const auto room = m_window.screen()->availableSize().shrunkBy(frame);
    const auto least = m_least.boundedTo(room);
    if (least == m_window.minimumSize())
        return;
    const auto isLeast = m_window.size() == m_window.minimumSize();
    m_window.setMinimumSize(least);
    if (isLeast)
        m_window.resize(least);
}
