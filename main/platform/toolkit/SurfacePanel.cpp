// SPDX-License-Identifier: MIT

#include "platform/toolkit/SurfacePanel.h"

#include "platform/toolkit/PixelGrid.h"
#include "platform/toolkit/ScreenList.h"

#include <utility>

namespace ambrelle {

namespace {

// A scene has many marks that change each for itself, and none are drawn but those nearby.
constexpr qint64 pointsOfScenePart = 10'000;

} // namespace

SurfacePanel::SurfacePanel(
    PanelDelegate& delegate, const ScreenList& screens, Rank rank, std::unique_ptr<SurfaceCanvas> canvas)
    : m_surface(new PanelSurface(delegate, screens, std::move(canvas)))
    , m_screens(screens)
    , m_rank(rank)
{
    if (isScene())
        m_surface->setPointsOfPart(pointsOfScenePart);
}

SurfacePanel::~SurfacePanel()
{
    m_surface->retire();
}

QRect SurfacePanel::wantedPlace() const
{
    const QRectF wanted = m_screens.space().turnedBack(m_frame);
    return {wanted.topLeft().toPoint(), PixelGrid(pixelRatio()).covering(wanted.size())};
}

void SurfacePanel::setFrame(const QRectF& frame)
{
    m_frame = frame;
    place();
}

void SurfacePanel::setClickThrough(bool through)
{
    if (std::exchange(m_clickThrough, through) != through)
        applyInput();
}

void SurfacePanel::setInputArea(const QRectF& area)
{
    if (m_inputArea == area)
        return;
    m_inputArea = area;
    applyInput();
}

} // namespace ambrelle
