// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/window/X11Panel.h"

#include <QTimer>

#include <functional>
#include <memory>

namespace ambrelle {

/// The decorations of one screen: a panel below the others, which the pointer does not meet. The marks of a window that
/// is moved and resized at once would be seen at wrong places until it is painted; so another panel takes its place,
/// and it goes once that one is seen. Where that is no gain the panel is as large as the screen for good.
class X11Scene final : public SceneWindow {
public:
    using Taken = std::function<void(X11Panel& panel)>;

    /// `taken` hears of every panel before it is shown.
    X11Scene(OrnamentDelegate& delegate, X11Parts& parts, Taken taken);
    ~X11Scene() override;

    void setFrame(const QRectF& frame) override;
    QRectF frame() const override { return m_frame; }
    void show() override;
    void update(const QRectF& area) override;
    void setOutline(const QList<QRectF>& areas) override;

    X11Panel& panel(); ///< the one that stays

private:
    class View;

    std::unique_ptr<View> makeView();
    QRectF placeFor(const QRectF& frame) const;
    QPointF shiftOf(const View& view) const;
    void painted(const View& view);

    OrnamentDelegate& m_delegate;
    X11Parts& m_parts;
    Taken m_taken;
    QRectF m_frame;
    QList<QRectF> m_outline;
    QTimer m_farewell; ///< of the former view
    std::unique_ptr<View> m_former;
    std::unique_ptr<View> m_view;
};

} // namespace ambrelle
