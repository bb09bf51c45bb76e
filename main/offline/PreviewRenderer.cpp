// SPDX-License-Identifier: MIT

#include "offline/PreviewRenderer.h"

#include "offline/BatchOutput.h"
#include "offline/DesktopCanvas.h"
#include "offline/PreviewSheet.h"
#include "offline/SampleData.h"
#include "offline/SampleWorld.h"
#include "skins/SkinRegistry.h"
#include "wallpapers/Wallpaper.h"

#include <QPainter>

namespace ambrelle::PreviewRenderer {

using namespace Qt::StringLiterals;

namespace {

/// Null where there is no memory for it.
QImage sheetOf(Skin skin, const ReadingFeed& feed, const Wallpaper& wallpaper)
{
    const PreviewSheet sheet = PreviewSheet::of(skin);
    QImage image = wallpaper.picture(skin, (sheet.size * PreviewSheet::scale).toSize());
    image.convertTo(QImage::Format_RGB32);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.scale(PreviewSheet::scale, PreviewSheet::scale);
    for (const PreviewSheet::Place& place : sheet.places) {
        painter.save();
        painter.translate(place.area.topLeft());
        view(skin, place.kind).draw(painter, feed.readingFor(SampleData::widget(place.kind), true), {});
        painter.restore();
    }
    return image;
}

} // namespace

int run(
    const QString& outputDirectory, const QList<Skin>& skins, const SampleWorld& samples, const Wallpaper& wallpaper)
{
    BatchOutput output(outputDirectory, skins.size());
    if (!output.open())
        return output.finish();
    for (const Skin skin : skins) {
        output.begin(title(skin));
        const QImage sheet = sheetOf(skin, samples.feed(), wallpaper);
        output.add(rawValue(skin) + u".png"_s, [sheet] { return BatchOutput::png(sheet); });
        if (output.isStopped())
            break;
    }
    return output.finish();
}

void addDesktop(BatchOutput& output, Skin skin, const SampleWorld& samples, const Wallpaper& wallpaper)
{
    const QImage desktop = DesktopCanvas::of(skin, samples).picture(DesktopCanvas::size.toSize(), wallpaper);
    output.add(u"preset-"_s + rawValue(skin) + u".png"_s, [desktop] { return BatchOutput::png(desktop); });
}

} // namespace ambrelle::PreviewRenderer
