// SPDX-License-Identifier: MIT

#include "offline/DesktopCanvas.h"

#include "model/Composition.h"
#include "offline/SampleWorld.h"
#include "skins/SceneRecipes.h"
#include "skins/SkinRegistry.h"
#include "wallpapers/Wallpaper.h"

#include <algorithm>

namespace ambrelle {

namespace {

double within(double place, double rest)
{
    return std::clamp(place, 0.0, std::max(0.0, rest));
}

} // namespace

DesktopCanvas DesktopCanvas::of(Skin skin, const SampleWorld& samples)
{
    DesktopCanvas canvas(skin);
    for (const PlacedWidget& widget : Composition::frames(skin, size))
        canvas.add(widget.config, widget.frame.topLeft(), samples);
    canvas.surround(skin);
    return canvas;
}

DesktopCanvas DesktopCanvas::of(const SavedTheme& theme, const SampleWorld& samples)
{
    DesktopCanvas canvas(theme.dominantSkin());
    for (const SavedWidget& widget : theme.widgets) {
        // One that stood at the edge of a larger screen is brought back in, as on a screen of this size.
        const QSizeF rest = size - widget.config.size();
        const QPointF place(widget.fx * size.width(), rest.height() - widget.fy * size.height());
        canvas.add(widget.config, {within(place.x(), rest.width()), within(place.y(), rest.height())}, samples);
    }
    canvas.surround(theme.dominantSkin());
    return canvas;
}

void DesktopCanvas::add(const WidgetConfig& config, QPointF place, const SampleWorld& samples)
{
    const FaceView face = view(config.skin, config.kind);
    auto reading = std::make_shared<const Reading>(samples.readingFor(config, face.showsSeconds()));
    m_widgets.append({face, FaceLook::of(config), std::move(reading), place, config.skin});
}

void DesktopCanvas::surround(Skin skin)
{
    QList<SceneItem> items;
    for (const Widget& widget : std::as_const(m_widgets)) {
        if (widget.skin == skin)
            items.append({widget.view.face().kind, {widget.place, widget.look.size}});
    }
    m_scene = sceneOf(skin, items, size);
}

QImage DesktopCanvas::picture(const QSize& pixels, const Wallpaper& wallpaper, int threads) const
{
    return on(wallpaper.picture(m_wallpaper, pixels, threads));
}

QImage DesktopCanvas::on(const QImage& wallpaper) const
{
    QImage picture = wallpaper.convertToFormat(QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    QPainter painter(&picture);
    painter.scale(picture.width() / size.width(), picture.height() / size.height());
    m_scene.draw(painter, {{0, 0}, size});
    drawWidgets(painter);
    return picture;
}

void DesktopCanvas::drawWidgets(QPainter& painter) const
{
    for (const Widget& widget : m_widgets) {
        painter.save();
        painter.translate(widget.place);
        FacePainter::paintOnce(painter, widget.view, widget.look, widget.reading);
        painter.restore();
    }
}

} // namespace ambrelle
