// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/SurfaceCanvas.h"
#include "platform/wayland/connection/PixelBuffer.h"

#include <QRegion>

#include <optional>
#include <vector>

namespace ambrelle {

/// Paints a surface in memory that the compositor reads, and hands it over with the parts that changed.
class WaylandCanvas final : public SurfaceCanvas {
public:
    /// What becomes of the pixels once the compositor has them.
    enum class Keeping {
        pixels, ///< kept, so that a part can be painted alone
        nothing, ///< given back: any change paints all of it
    };

    WaylandCanvas(wl_shm* memory, Keeping keeping);
    ~WaylandCanvas() override;

    void paint(RasterSurface& surface, const QList<QRect>& parts, const Paint& paint) override;

    /// Where the pixels are shown from now on, all of them as soon as there are some; null: nowhere for the time being.
    void setTarget(wl_surface* target);
    /// The only part that is ever seen, window points; none: all of it. Counts for what is painted from now on; whether
    /// that is another part than before.
    bool setShownPart(const std::optional<QRect>& part);
    void setOpacity(double opacity) { m_opacity = opacity; } ///< 0 to 1; counts for what is painted from now on
    bool hasPixels() const { return m_current != nullptr; } ///< to be shown

private:
    bool prepare(QSize pixels);
    void submit();

    wl_shm* m_memory;
    Keeping m_keeping;
    wl_surface* m_target = nullptr;
    double m_opacity = 1;
    std::optional<QRect> m_shownPart;
    int m_scale = 1; ///< of the pixels, as the compositor is told
    std::unique_ptr<PixelBuffer> m_current;
    std::vector<std::unique_ptr<PixelBuffer>> m_former; ///< that the compositor still reads
    QRegion m_changed; ///< pixels that were not handed over
};

} // namespace ambrelle
