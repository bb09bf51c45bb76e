// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetDrag.h"

#include "window/look/AppLook.h"

#include <QMouseEvent>
#include <QVariantAnimation>
#include <QWidget>

#include <utility>

namespace ambrelle {

namespace {

constexpr double ghostOpacity = 0.85;
constexpr int flightTime = 150; // milliseconds

} // namespace

/// The widget as it would be on the desktop, above everything.
class WidgetDrag::Panel final : public OrnamentDelegate {
public:
    Panel(WindowHost& host, const Ghost& ghost)
        : m_face(ghost.view, m_layers)
    {
        m_face.setLook({.size = ghost.size});
        m_face.setReading(ghost.reading);
        m_window = host.makePanel(*this);
        m_window->setLevel(WindowLevel::floating);
        m_window->setClickThrough(true);
        m_window->setOpacity(ghostOpacity);
        m_window->setOutline({{m_face.outline().translated(-m_face.reach().topLeft()), m_face.outlineCorner()}});
    }

    void moveTo(const QPointF& centre)
    {
        QRectF frame({}, m_face.reach().size());
        frame.moveCenter(centre);
        m_window->setFrame(frame);
    }
    void show() { m_window->show(); }
    QPointF centre() const { return m_window->frame().center(); }

    void paint(QPainter& painter, const QRectF& area) override
    {
        const QPointF corner = m_face.reach().topLeft();
        painter.translate(-corner);
        m_face.paint(painter, area.translated(corner), 0);
        painter.translate(corner);
    }
    void appearanceChanged() override { m_window->update({{}, m_window->frame().size()}); }

private:
    LayerCache m_layers;
    FacePainter m_face;
    std::unique_ptr<PanelWindow> m_window; // last: it calls back until it is gone
};

WidgetDrag::WidgetDrag(WindowHost& host, QWidget& source)
    : QObject(&source)
    , m_host(host)
    , m_source(source)
    , m_flight(new QVariantAnimation(this))
{
    m_flight->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_flight, &QVariantAnimation::valueChanged, this, [this](const QVariant& centre) {
        if (m_panel)
            m_panel->moveTo(centre.toPointF());
    });
    connect(m_flight, &QVariantAnimation::finished, this, [this] { m_panel.reset(); });
    source.installEventFilter(this);
}

WidgetDrag::~WidgetDrag() = default;

void WidgetDrag::begin(const Ghost& ghost, const QPointF& home, Dropped dropped)
{
    m_flight->stop();
    m_home = home;
    m_dropped = std::move(dropped);
    m_panel = std::make_unique<Panel>(m_host, ghost);
    follow();
    m_panel->show();
}

void WidgetDrag::follow()
{
    m_panel->moveTo(m_host.pointer());
}

bool WidgetDrag::isInside(const QPointF& point) const
{
    const QPoint place = m_host.toolkitRect({point, QSizeF(0, 0)}).topLeft().toPoint();
    return m_source.window()->frameGeometry().contains(place);
}

/// Where the ghost came from; the toolkit's places are turned by the place of the pointer, which is known in both.
QPointF WidgetDrag::homeNow() const
{
    const QPointF pointer = m_host.pointer();
    const QPointF turned = m_host.toolkitRect({pointer, QSizeF(0, 0)}).topLeft();
    const QPointF way = m_source.mapToGlobal(m_home) - turned;
    return pointer + QPointF(way.x(), -way.y());
}

void WidgetDrag::drop()
{
    const QPointF place = m_host.pointer();
    if (isInside(place))
        return flyBack();
    const Dropped dropped = std::exchange(m_dropped, nullptr);
    m_panel.reset();
    dropped(place);
}

void WidgetDrag::cancel()
{
    if (isActive())
        flyBack();
}

void WidgetDrag::flyBack()
{
    m_dropped = nullptr;
    const int time = AppLook::shared().milliseconds(flightTime);
    if (time == 0)
        return m_panel.reset();
    m_flight->setDuration(time);
    m_flight->setStartValue(m_panel->centre());
    m_flight->setEndValue(homeNow());
    m_flight->start();
}

bool WidgetDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide) {
        m_dropped = nullptr;
        m_flight->stop();
        m_panel.reset();
    }
    if (!isActive())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseMove:
        if (static_cast<QMouseEvent*>(event)->buttons() & Qt::LeftButton)
            follow();
        else
            cancel(); // it was released where nobody heard it
        return true;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            drop();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel: return true;
    default: return QObject::eventFilter(watched, event);
    }
}

} // namespace ambrelle
