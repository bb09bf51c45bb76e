// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetDrag.h"

#include "window/look/AppLook.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPixmap>
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

/// The widget as the pointer, for as long as it lives.
class WidgetDrag::Cursor final {
public:
    explicit Cursor(const Ghost& ghost)
    {
        LayerCache layers;
        FacePainter face(ghost.view, layers);
        face.setLook({.size = ghost.size});
        face.setReading(ghost.reading);
        QPixmap picture(face.reach().size().toSize());
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(ghostOpacity);
        painter.translate(-face.reach().topLeft());
        face.paint(painter, face.reach(), 0);
        painter.end();
        QGuiApplication::setOverrideCursor(QCursor(picture, picture.width() / 2, picture.height() / 2));
    }
    ~Cursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(Cursor)
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
    m_spotter = m_host.makeDropSpotter();
    if (m_spotter) {
        m_cursor = std::make_unique<Cursor>(ghost);
        return;
    }
    m_panel = std::make_unique<Panel>(m_host, ghost);
    follow();
    m_panel->show();
}

void WidgetDrag::follow()
{
    if (m_panel)
        m_panel->moveTo(m_host.pointer());
}

/// `told` by the toolkit: right about its own window even where nobody knows where that is.
bool WidgetDrag::isInside(const QPointF& told) const
{
    const QPointF place = m_spotter ? told : m_host.toolkitRect({m_host.pointer(), QSizeF(0, 0)}).topLeft();
    return m_source.window()->frameGeometry().contains(place.toPoint());
}

/// Where the ghost came from; the toolkit's places are turned by the place of the pointer, which is known in both.
QPointF WidgetDrag::homeNow() const
{
    const QPointF pointer = m_host.pointer();
    const QPointF turned = m_host.toolkitRect({pointer, QSizeF(0, 0)}).topLeft();
    const QPointF way = m_source.mapToGlobal(m_home) - turned;
    return pointer + QPointF(way.x(), -way.y());
}

void WidgetDrag::drop(const QPointF& told)
{
    if (isInside(told))
        return flyBack();
    Dropped dropped = std::exchange(m_dropped, nullptr);
    m_panel.reset();
    m_cursor.reset();
    if (!m_spotter)
        return dropped(m_host.pointer());
    m_spotter->released([this, dropped = std::move(dropped)](const std::optional<QPointF>& found) {
        m_spotter.reset();
        dropped(found);
    });
}

void WidgetDrag::cancel()
{
    if (isActive())
        flyBack();
}

void WidgetDrag::flyBack()
{
    m_dropped = nullptr;
    m_spotter.reset();
    m_cursor.reset();
    if (!m_panel)
        return;
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
        m_spotter.reset();
        m_cursor.reset();
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
            drop(static_cast<QMouseEvent*>(event)->globalPosition());
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel: return true;
    default: return QObject::eventFilter(watched, event);
    }
}

} // namespace ambrelle
