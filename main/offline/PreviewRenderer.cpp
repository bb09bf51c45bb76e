#include "offline/PreviewRenderer.h"

#include "faces/SampleReadings.h"
#include "offline/PreviewSheet.h"
#include "services/SystemMonitor.h"
#include "skins/SkinRegistry.h"
#include "wallpapers/Wallpaper.h"

#include <QDir>
#include <QPainter>

#include <cstdio>

namespace ambrelle::PreviewRenderer {

namespace {

void say(std::FILE* stream, const QString& line)
{
    std::fputs(qPrintable(line + u'\n'), stream);
}

QImage render(Skin skin, const SystemMonitor& monitor, const QDateTime& now, const Wallpaper& wallpaper)
{
    const PreviewSheet sheet = PreviewSheet::of(skin);
    QImage image((sheet.size * PreviewSheet::scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(PreviewSheet::scale, PreviewSheet::scale);
    wallpaper.draw(painter, QRectF({}, sheet.size), skin);
    for (const PreviewSheet::Place& place : sheet.places) {
        painter.save();
        painter.translate(place.area.topLeft());
        view(skin, place.kind).draw(painter, sampleReading(place.kind, monitor, now, QLocale::system()), {});
        painter.restore();
    }
    return image;
}

} // namespace

int run(const QString& outputDirectory, std::optional<Skin> only, SystemMonitor& monitor, const Wallpaper& wallpaper)
{
    const QDir folder(outputDirectory);
    if (!folder.mkpath(QStringLiteral("."))) {
        say(stderr, QStringLiteral("ambrelle: cannot make the folder ") + outputDirectory);
        return 1;
    }
    const QDateTime now(QDate(2026, 10, 14), QTime(9, 41));
    monitor.loadPreviewData();
    int status = 0;
    for (const Skin skin : allCases<Skin>()) {
        if (only && *only != skin)
            continue;
        const QString path = folder.filePath(rawValue(skin) + QStringLiteral(".png"));
        if (render(skin, monitor, now, wallpaper).save(path)) {
            say(stdout, QStringLiteral("wrote ") + path);
        } else {
            say(stderr, QStringLiteral("failed to render ") + rawValue(skin));
            status = 1;
        }
    }
    return status;
}

} // namespace ambrelle::PreviewRenderer
