// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/LayerCache.h"
#include "faces/FacePainter.h"
#include "platform/WindowHost.h"

#include <QObject>

#include <functional>

class QVariantAnimation;
class QWidget;

namespace ambrelle {

/// Pulls a new widget out of a window: a ghost of it follows the pointer until the button is released. Dropped outside
/// the window it is told where, in its window or cancelled it flies back. Where windows do not know their own places
/// the ghost is the pointer itself.
class WidgetDrag final : public QObject {
public:
    struct Ghost {
        FaceView view;
        QSizeF size; ///< of the widget, points
        std::shared_ptr<const Reading> reading;
    };
    using Dropped = std::function<void(const std::optional<QPointF>& centre)>; ///< global points; none: unknown

    /// `source` has the pointer while its button is held. It outlives this, as `host` does.
    WidgetDrag(WindowHost& host, QWidget& source);
    ~WidgetDrag() override;

    /// From then on the moves of the pointer are not the source's. `home` is where the ghost flies back to, the middle
    /// in points of the source.
    void begin(const Ghost& ghost, const QPointF& home, Dropped dropped);
    bool isActive() const { return m_dropped != nullptr; } ///< the button is held
    void cancel();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Panel;
    class Cursor;

    void follow();
    void drop(const QPointF& told);
    void flyBack();
    bool isInside(const QPointF& told) const;
    QPointF homeNow() const;

    WindowHost& m_host;
    QWidget& m_source;
    QPointF m_home;
    Dropped m_dropped;
    std::unique_ptr<DropSpotter> m_spotter; // only where pointer() does not know
    std::unique_ptr<Panel> m_panel; // also on its way back
    std::unique_ptr<Cursor> m_cursor; // in its place
    QVariantAnimation* m_flight;
};

} // namespace ambrelle
