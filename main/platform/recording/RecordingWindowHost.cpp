// SPDX-License-Identifier: MIT

#include "platform/recording/RecordingWindowHost.h"

#include <QPainter>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

RecordingPanel::RecordingPanel(RecordingWindowHost& host, PanelDelegate& delegate)
    : m_host(&host)
    , m_delegate(delegate)
{
}

RecordingPanel::~RecordingPanel()
{
    if (m_host)
        m_host->forget(this);
}

void RecordingPanel::setLevel(WindowLevel level)
{
    if (std::exchange(m_level, level) != level && m_host)
        m_host->raise(this);
}

double RecordingPanel::pixelRatio() const
{
    const QList<ScreenInfo> screens = m_host ? m_host->screens() : QList<ScreenInfo>{};
    for (const ScreenInfo& screen : screens) {
        if (screen.frame.contains(m_frame.center()))
            return screen.pixelRatio;
    }
    return screens.isEmpty() ? 1 : screens.first().pixelRatio;
}

QImage RecordingPanel::picture(double ratio) const
{
    QImage image((m_frame.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    const QRectF area({0, 0}, m_frame.size());
    QPainter painter(&image);
    painter.setClipRect(area);
    m_delegate.paint(painter, area);
    return image;
}

bool RecordingPanel::hears(const QPointF& global) const
{
    if (!m_visible || m_clickThrough || !m_frame.contains(global))
        return false;
    return !m_inputArea || m_inputArea->contains(toLocal(global));
}

QPointF RecordingPanel::toLocal(const QPointF& global) const
{
    return {global.x() - m_frame.x(), m_frame.y() + m_frame.height() - global.y()};
}

RecordingBackdrop::RecordingBackdrop(RecordingWindowHost& host, BackdropDelegate& delegate)
    : m_host(&host)
    , m_delegate(delegate)
{
}

RecordingBackdrop::~RecordingBackdrop()
{
    if (m_host)
        m_host->forget(this);
}

void RecordingBackdrop::takeFocus()
{
    if (m_host)
        m_host->m_focused = this;
}

bool RecordingBackdrop::hasFocus() const
{
    return m_host && m_host->focused() == this;
}

QImage RecordingBackdrop::picture(double ratio) const
{
    QImage image((m_frame.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    m_delegate.paint(painter, m_frame.size());
    return image;
}

RecordingScene::RecordingScene(RecordingWindowHost& host, OrnamentDelegate& delegate)
    : m_host(&host)
    , m_delegate(delegate)
{
}

RecordingScene::~RecordingScene()
{
    if (m_host)
        m_host->m_scenes.removeOne(this);
}

QImage RecordingScene::picture(const std::optional<QRectF>& area) const
{
    QImage image(m_frame.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QRectF painted = area.value_or(QRectF({0, 0}, m_frame.size()));
    QPainter painter(&image);
    painter.setClipRect(painted);
    m_delegate.paint(painter, painted);
    return image;
}

RecordingWindowHost::RecordingWindowHost()
{
    ScreenInfo screen;
    screen.id = u"main-screen"_s;
    screen.connector = u"DP-1"_s;
    screen.frame = QRectF(0, 0, 1440, 900);
    screen.visibleFrame = QRectF(0, 0, 1440, 860);
    screen.widthInMillimetres = 340;
    m_screens = {screen};
}

QRectF RecordingWindowHost::toolkitRect(const QRectF& rect) const
{
    const double top = m_screens.isEmpty() ? 0 : m_screens.first().frame.bottom();
    return {QPointF(rect.left(), top - rect.bottom()), rect.size()};
}

std::unique_ptr<DropSpotter> RecordingWindowHost::makeDropSpotter()
{
    struct Spotter final : DropSpotter {
        explicit Spotter(const std::optional<QPointF>& found)
            : place(found)
        {
        }
        void released(Found found) override
        {
            QMetaObject::invokeMethod(
                &context, [this, found] { found(place); }, Qt::QueuedConnection);
        }
        QObject context;
        std::optional<QPointF> place;
    };
    return m_dropSpot ? std::make_unique<Spotter>(*m_dropSpot) : nullptr;
}

std::unique_ptr<PanelWindow> RecordingWindowHost::makePanel(PanelDelegate& delegate)
{
    auto panel = std::make_unique<RecordingPanel>(*this, delegate);
    m_panels.append(panel.get());
    m_stacking.append(panel.get());
    return panel;
}

std::unique_ptr<BackdropWindow> RecordingWindowHost::makeBackdrop(BackdropDelegate& delegate)
{
    auto backdrop = std::make_unique<RecordingBackdrop>(*this, delegate);
    m_backdrops.append(backdrop.get());
    return backdrop;
}

std::unique_ptr<SceneWindow> RecordingWindowHost::makeScene(OrnamentDelegate& delegate)
{
    auto scene = std::make_unique<RecordingScene>(*this, delegate);
    m_scenes.append(scene.get());
    return scene;
}

void RecordingWindowHost::pressKey(Qt::Key key)
{
    if (m_focused)
        m_focused->delegate().keyPressed(key);
}

void RecordingWindowHost::setScreens(const QList<ScreenInfo>& screens)
{
    if (screens == m_screens)
        return;
    m_screens = screens;
    Q_EMIT screensChanged();
}

void RecordingWindowHost::movePointer(const QPointF& global, Qt::KeyboardModifiers modifiers)
{
    m_pointer = global;
    if (!m_pressed)
        hover(panelAt(global));
    if (RecordingPanel* target = m_pressed ? m_pressed : m_hovered)
        target->delegate().pointerMoved(eventFor(*target, m_heldButton, modifiers));
}

void RecordingWindowHost::press(const QPointF& global, Qt::MouseButton button)
{
    if (global != m_pointer)
        movePointer(global);
    else
        hover(panelAt(global));
    m_pressed = panelAt(global);
    m_heldButton = button;
    m_pressedBackdrop = m_pressed ? nullptr : backdropAt(global);
    if (m_pressed)
        m_pressed->delegate().pointerPressed(eventFor(*m_pressed, button, Qt::NoModifier));
}

void RecordingWindowHost::release(const QPointF& global, Qt::MouseButton button)
{
    if (global != m_pointer)
        movePointer(global);
    RecordingPanel* target = m_pressed;
    m_pressed = nullptr;
    m_heldButton = Qt::NoButton;
    if (target)
        target->delegate().pointerReleased(eventFor(*target, button, Qt::NoModifier));
    RecordingBackdrop* backdrop = std::exchange(m_pressedBackdrop, nullptr);
    if (backdrop && button == Qt::LeftButton)
        backdrop->delegate().clicked();
    hover(panelAt(global));
}

void RecordingWindowHost::click(const QPointF& global, Qt::MouseButton button)
{
    press(global, button);
    release(global, button);
}

void RecordingWindowHost::drag(const QPointF& from, const QPointF& to, int steps)
{
    press(from);
    for (int step = 1; step <= steps; ++step)
        movePointer(from + (to - from) * step / steps);
    release(to);
}

RecordingPanel* RecordingWindowHost::panelAt(const QPointF& global) const
{
    for (const WindowLevel level : {WindowLevel::floating, WindowLevel::desktop}) {
        const auto found = std::find_if(m_stacking.crbegin(), m_stacking.crend(),
            [&](const RecordingPanel* panel) { return panel->level() == level && panel->hears(global); });
        if (found != m_stacking.crend())
            return *found;
    }
    return nullptr;
}

void RecordingWindowHost::forget(RecordingPanel* panel)
{
    m_panels.removeOne(panel);
    m_stacking.removeOne(panel);
    m_hovered = m_hovered == panel ? nullptr : m_hovered;
    m_pressed = m_pressed == panel ? nullptr : m_pressed;
}

void RecordingWindowHost::raise(RecordingPanel* panel)
{
    m_stacking.removeOne(panel);
    m_stacking.append(panel);
}

void RecordingWindowHost::forget(RecordingBackdrop* backdrop)
{
    m_backdrops.removeOne(backdrop);
    m_focused = m_focused == backdrop ? nullptr : m_focused;
    m_pressedBackdrop = m_pressedBackdrop == backdrop ? nullptr : m_pressedBackdrop;
}

RecordingBackdrop* RecordingWindowHost::backdropAt(const QPointF& global) const
{
    const auto found = std::ranges::find_if(m_backdrops,
        [&](const RecordingBackdrop* backdrop) { return backdrop->isVisible() && backdrop->frame().contains(global); });
    return found == m_backdrops.end() ? nullptr : *found;
}

void RecordingWindowHost::hover(RecordingPanel* panel)
{
    if (panel == m_hovered)
        return;
    RecordingPanel* left = m_hovered;
    m_hovered = panel;
    if (left)
        left->delegate().pointerLeft();
    // Leaving may have closed the other window.
    if (panel && m_hovered == panel)
        panel->delegate().pointerEntered();
}

PointerEvent RecordingWindowHost::eventFor(
    const RecordingPanel& panel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) const
{
    return {panel.toLocal(m_pointer), m_pointer, button, modifiers};
}

} // namespace ambrelle
