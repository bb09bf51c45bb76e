// SPDX-License-Identifier: MIT

#include "app/WallpaperBatch.h"

#include "foundation/WholeFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

#include <cstdlib>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

int refuse(const QString& sentence)
{
    QTextStream(stderr) << "ambrelle: " << sentence << '\n';
    return EXIT_FAILURE;
}

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

/// One line that is written over and over, where a person looks at it.
class Progress {
public:
    void show(qsizetype number, qsizetype count, Skin skin) const
    {
        if (m_shown)
            QTextStream(stderr) << "\r\033[K" << number << '/' << count << ' ' << title(skin);
    }
    void clear() const
    {
        if (m_shown)
            QTextStream(stderr) << "\r\033[K";
    }

private:
    bool m_shown = isatty(STDOUT_FILENO) && isatty(STDERR_FILENO);
};

} // namespace

int renderWallpapers(const Wallpaper& wallpaper, const QString& folder, std::optional<Skin> only)
{
    const std::optional<int> width = pixels("WIDTH", 2880);
    const std::optional<int> height = pixels("HEIGHT", 1800);
    if (!width || !height)
        return refuse(badSize(width ? "HEIGHT" : "WIDTH"));
    const QDir directory(folder);
    if (!directory.mkpath(u"."_s))
        return refuse(u"The folder “%1” cannot be made."_s.arg(folder));

    const auto every = allCases<Skin>();
    const QList<Skin> skins = only ? QList{*only} : QList<Skin>(every.begin(), every.end());
    const Progress progress;
    QTextStream out(stdout);
    for (qsizetype i = 0; i < skins.size(); ++i) {
        const Skin skin = skins[i];
        progress.show(i + 1, skins.size(), skin);
        QElapsedTimer timer;
        timer.start();
        const QByteArray png = wallpaper.png(skin, {*width, *height});
        const QString path = directory.filePath(rawValue(skin) + u".png"_s);
        const QString reason = png.isEmpty() ? QString() : writeWhole(path, png);
        progress.clear();
        if (png.isEmpty())
            return refuse(u"There is not enough memory for %1 by %2 pixels."_s.arg(*width).arg(*height));
        if (!reason.isEmpty())
            return refuse(u"“%1” cannot be written: %2."_s.arg(path, reason));
        out << QString::asprintf(
            "%s %.2fs\n", qPrintable(rawValue(skin)), static_cast<double>(timer.nsecsElapsed()) / 1e9);
        out.flush();
    }
    return EXIT_SUCCESS;
}

} // namespace ambrelle
