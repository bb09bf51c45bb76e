// SPDX-License-Identifier: MIT

#include "app/WallpaperBatch.h"

#include "offline/BatchOutput.h"

#include <QElapsedTimer>

#include <new>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// The number of pixels that the environment variable names, or `usual` without it; nothing when it is no such number.
std::optional<int> pixels(const char* variable, int usual)
{
    if (qEnvironmentVariableIsEmpty(variable))
        return usual;
    bool isNumber = false;
    const int value = qEnvironmentVariable(variable).toInt(&isNumber);
    if (!isNumber || value < 1 || value > Wallpaper::largestSide)
        return std::nullopt;
    return value;
}

QString badSize(const char* variable)
{
    return u"%1 must be a whole number of pixels from 1 to %2, not “%3”."_s.arg(QLatin1StringView(variable))
        .arg(Wallpaper::largestSide)
        .arg(qEnvironmentVariable(variable));
}

} // namespace

int renderWallpapers(const Wallpaper& wallpaper, const QString& folder, const QList<Skin>& skins)
{
    BatchOutput output(folder, skins.size());
    const std::optional<int> width = pixels("WIDTH", 2880);
    const std::optional<int> height = pixels("HEIGHT", 1800);
    if (!width || !height)
        output.refuse(badSize(width ? "HEIGHT" : "WIDTH"));
    else
        output.open();
    for (const Skin skin : skins) {
        if (output.isStopped())
            break;
        output.begin(title(skin));
        QElapsedTimer timer;
        timer.start();
        QByteArray png;
        try {
            png = wallpaper.png(skin, {*width, *height});
        } catch (const std::bad_alloc&) {
            output.refuse(u"There is not enough memory for %1 by %2 pixels."_s.arg(*width).arg(*height));
            break;
        }
        output.add(rawValue(skin) + u".png"_s, png);
        if (!png.isEmpty())
            output.tell(QString::asprintf(
                "%s %.2fs", qPrintable(rawValue(skin)), static_cast<double>(timer.nsecsElapsed()) / 1e9));
    }
    return output.finish();
}

} // namespace ambrelle
