// SPDX-License-Identifier: MIT

#include "desktop/WidgetTip.h"

#include "desktop/TextCapsule.h"
#include "desktop/WidgetController.h"
#include "placement/ScreenPlacement.h"

#include <cmath>

namespace ambrelle {

namespace {

constexpr double tipTextSize = 13;
constexpr double tipGap = 8; // between the widget and its tip
constexpr double tipMargin = 8; // kept free along the edges of the screen
constexpr double widestTip = 420;

/// Below the widget, or above it where there is no room, and whole on its screen. Global points.
QRectF tipPlace(const QRectF& widget, const QSizeF& size, const QRectF& room)
{
    QRectF place({std::round(widget.center().x() - size.width() / 2), widget.y() - tipGap - size.height()}, size);
    if (place.y() < room.y())
        place.moveTop(widget.y() + widget.height() + tipGap);
    return ScreenPlacement::movedInto(place, room);
}

} // namespace

class WidgetTip::Panel final : public OrnamentDelegate {
public:
    Panel(WindowHost& host, const QRectF& widget, const QRectF& room, const QString& text)
        : m_text(text)
        , m_capsule(text, tipTextSize, std::min(widestTip, room.width()))
        , m_window(host.makePanel(*this))
    {
        const QRectF place = tipPlace(widget, m_capsule.size(), room);
        m_window->setFrame({place.topLeft(), QSizeF(std::ceil(place.width()), std::ceil(place.height()))});
        m_window->setOutline({{.area = {{}, m_capsule.size()}, .corner = m_capsule.corner()}});
        m_window->setClickThrough(true);
        m_window->setLevel(WindowLevel::floating);
        m_window->show();
    }

    void paint(QPainter& painter, const QRectF&) override { m_capsule.paint(painter, {}); }
    void appearanceChanged() override { m_window->update({{}, m_window->frame().size()}); }
    QString accessibleName() const override { return m_text; }

private:
    QString m_text;
    TextCapsule m_capsule;
    std::unique_ptr<PanelWindow> m_window; // last: it calls back until it is gone
};

WidgetTip::WidgetTip(WindowHost& host, Clock& clock)
    : m_host(host)
    , m_clock(clock)
{
}

WidgetTip::~WidgetTip() = default;

void WidgetTip::show(const WidgetController& widget, const QString& text)
{
    hide();
    const auto screen = ScreenPlacement::screenNear(widget.widgetFrame(), m_host.screens());
    if (!screen)
        return;
    const QRectF room = ScreenPlacement::room(*screen).adjusted(tipMargin, tipMargin, -tipMargin, -tipMargin);
    m_panel = std::make_unique<Panel>(m_host, widget.widgetFrame(), room, text);
    m_end = connect(&widget, &WidgetController::closed, this, &WidgetTip::hide);
    m_time = m_clock.after(duration, [this] { hide(); });
}

void WidgetTip::hide()
{
    disconnect(m_end);
    m_panel.reset();
}

} // namespace ambrelle
