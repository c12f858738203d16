// SPDX-License-Identifier: MIT
#include "Controls/ScreenFit.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

ScreenFit::ScreenFit(QWidget& window, QSize minSize)
    : QObject(&window)
    , m_window(window)
    , m_minSize(minSize)
{
    window.installEventFilter(this);
    fit();
}

bool ScreenFit::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        connect(m_window.windowHandle(), &QWindow::screenChanged, this, &ScreenFit::setScreen,
                Qt::UniqueConnection);
        setScreen(m_window.screen());
    } else if (event->type() == QEvent::Move) {
        // The desktop adds its frame only after the window has been shown.
        fit();
    }
    return false;
}

void ScreenFit::setScreen(QScreen* screen)
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
    const auto minSize = m_minSize.boundedTo(m_window.screen()->availableSize().shrunkBy(frame));
    if (minSize == m_window.minimumSize())
        return;
    const auto isMinimal = m_window.size() == m_window.minimumSize();
    m_window.setMinimumSize(minSize);
    if (isMinimal)
        m_window.resize(minSize);
}
