// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FacePainter.h"
#include "model/SavedTheme.h"
#include "scenes/Scene.h"
#include "scenes/SceneLayout.h"

#include <QImage>
#include <QRectF>

#include <memory>

namespace ambrelle {

class SampleWorld;
class Wallpaper;

/// A whole desktop as a picture: a wallpaper, the widgets on it with sample data, and the scene around most of them. It
/// is made on the main thread, with the accents of that moment, and drawn on any.
class DesktopCanvas {
public:
    static constexpr QSizeF size{1440, 900}; ///< points; every skin's own layout has its natural size there

    /// The skin's own desktop.
    static DesktopCanvas of(Skin skin, const SampleWorld& samples);
    /// The user's desktop, as it comes back to a screen of that size, on the wallpaper of most of its widgets' skin.
    static DesktopCanvas of(const SavedTheme& theme, const SampleWorld& samples);

    /// The desktop in exactly that many pixels; null where there is no memory for them. `threads` may work on the
    /// wallpaper, 0 for as many as the machine has processors.
    QImage picture(const QSize& pixels, const Wallpaper& wallpaper, int threads = 0) const;
    /// The same where the picture of the wallpaper is there already; null without one.
    QImage on(const QImage& wallpaper) const;
    const Scene& scene() const { return m_scene; }

private:
    struct Widget {
        FaceView view;
        FaceLook look;
        std::shared_ptr<const Reading> reading;
        QPointF place; ///< of its upper left corner, points of the canvas, y down
        Skin skin;
    };

    explicit DesktopCanvas(Skin wallpaper)
        : m_wallpaper(wallpaper)
    {
    }

    void add(const WidgetConfig& config, QPointF place, const SampleWorld& samples);
    void surround(Skin skin); ///< with the skin's scene, once the widgets are there
    void drawWidgets(QPainter& painter) const;

    Skin m_wallpaper;
    Scene m_scene;
    QList<Widget> m_widgets; // the last lies above the others
};

} // namespace ambrelle
