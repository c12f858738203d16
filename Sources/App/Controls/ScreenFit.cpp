// SPDX-License-Identifier: MIT
#include "Controls/ScreenFit.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

ScreenFit::ScreenFit(QWidget& window, const std::function<void(QSize)>& fit)
    : QObject(&window)
    , m_window(window)
    , m_fit(fit)
{
    window.installEventFilter(this);
    this->fit();
}

bool ScreenFit::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        connect(m_window.windowHandle(), &QWindow::screenChanged, this, &ScreenFit::setScreen,
                Qt::UniqueConnection);
        setScreen(m_window.screen());
    } else if (event->type() == QEvent::Move) {
        // The window gets its frame some time after it is shown.
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
    // A sheet without a frame will get one like the window below it.
    const auto* const framed = m_window.windowHandle() ? &m_window : m_window.parentWidget();
    const auto* const handle = framed ? framed->windowHandle() : nullptr;
    const auto frame = handle ? handle->frameMargins() : QMargins();
    m_fit(m_window.screen()->availableSize().shrunkBy(frame));
}
