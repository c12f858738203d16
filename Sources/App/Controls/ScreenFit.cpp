// SPDX-License-Identifier: MIT
#include "Controls/ScreenFit.h"

#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

class ScreenFit final : public QObject
{
public:
    /// Becomes a child of `window`.
    ScreenFit(QWidget& window, const std::function<void(QSize)>& fit);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setScreen(QScreen* screen);
    void fit();

    QWidget& m_window;
    std::function<void(QSize)> m_fit;
    QPointer<QScreen> m_screen;
};

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

} // namespace

void fitToScreen(QWidget& window, const std::function<void(QSize)>& fit)
{
    new ScreenFit(window, fit);
}
