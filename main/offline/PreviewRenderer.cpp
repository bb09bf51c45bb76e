// SPDX-License-Identifier: MIT

#include "offline/PreviewRenderer.h"

#include "faces/ReadingFeed.h"
#include "offline/PreviewSheet.h"
#include "offline/SampleData.h"
#include "skins/SkinRegistry.h"
#include "wallpapers/Wallpaper.h"

#include <QDir>
#include <QPainter>

#include <cstdio>

namespace ambrelle::PreviewRenderer {

using namespace Qt::StringLiterals;

namespace {

void say(std::FILE* stream, const QString& line)
{
    std::fputs(qPrintable(line + u'\n'), stream);
}

QImage render(Skin skin, const ReadingFeed& feed, const Wallpaper& wallpaper)
{
    const PreviewSheet sheet = PreviewSheet::of(skin);
    QImage image((sheet.size * PreviewSheet::scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(PreviewSheet::scale, PreviewSheet::scale);
    wallpaper.draw(painter, QRectF({}, sheet.size), skin);
    for (const PreviewSheet::Place& place : sheet.places) {
        painter.save();
        painter.translate(place.area.topLeft());
        view(skin, place.kind).draw(painter, feed.readingFor(SampleData::widget(place.kind), true), {});
        painter.restore();
    }
    return image;
}

} // namespace

int run(const QString& outputDirectory, std::optional<Skin> only, const ReadingFeed& feed, const Wallpaper& wallpaper)
{
    const QDir folder(outputDirectory);
    if (!folder.mkpath(u"."_s)) {
        say(stderr, u"ambrelle: cannot make the folder "_s + outputDirectory);
        return 1;
    }
    int status = 0;
    for (const Skin skin : allCases<Skin>()) {
        if (only && *only != skin)
            continue;
        const QString path = folder.filePath(rawValue(skin) + u".png"_s);
        if (render(skin, feed, wallpaper).save(path)) {
            say(stdout, u"wrote "_s + path);
        } else {
            say(stderr, u"failed to render "_s + rawValue(skin));
            status = 1;
        }
    }
    return status;
}

} // namespace ambrelle::PreviewRenderer
