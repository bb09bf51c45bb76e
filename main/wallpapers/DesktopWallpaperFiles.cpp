// SPDX-License-Identifier: MIT

// Which files the screens are to show, and how they are made.

#include "wallpapers/DesktopWallpaper.h"

#include "foundation/WholeFile.h"
#include "foundation/Wording.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// With a fractional ratio the toolkit rounds the points, which loses up to a pixel; displays have even sizes.
int nativeLength(double points, double pixelRatio)
{
    const double length = points * pixelRatio;
    return static_cast<int>(pixelRatio == std::floor(pixelRatio) ? length : 2 * std::round(length / 2));
}

QSize pixels(const ScreenInfo& screen)
{
    return {
        nativeLength(screen.frame.width(), screen.pixelRatio), nativeLength(screen.frame.height(), screen.pixelRatio)};
}

/// Why the bytes are not in the file, or empty.
QString writeFile(const QString& path, const QByteArray& bytes)
{
    const QString reason = writeWhole(path, bytes);
    return reason.isEmpty() ? reason : Wording::tr("“%1” cannot be written: %2.").arg(path, reason);
}

/// Why the skin's wallpaper of that size is not in the file, or empty; what is there already is kept.
QString paintFile(const Wallpaper& wallpaper, Skin skin, QSize size, const QString& path)
{
    if (QFileInfo(path).size() > 0)
        return {};
    const QByteArray png = wallpaper.png(skin, size);
    if (png.isEmpty())
        return Wording::tr("A picture of %1 by %2 pixels cannot be made.").arg(size.width()).arg(size.height());
    return writeFile(path, png);
}

QString whyUnreadable(const QString& file)
{
    return QFileInfo(file).isReadable() ? QString() : Wording::tr("“%1” cannot be read.").arg(file);
}

QString installExtra(const QString& extra, const QString& installed)
{
    if (QFileInfo(installed).size() > 0)
        return {};
    QFile file(extra);
    const QByteArray picture = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError || picture.isEmpty())
        return Wording::tr("“%1” cannot be read: %2.").arg(extra, file.errorString());
    return writeFile(installed, picture);
}

} // namespace

void DesktopWallpaper::apply(Skin skin, const QList<ScreenInfo>& screens, const Done& done, const Remembered& before)
{
    Sizes sizes;
    QList<ScreenPicture> pictures;
    // One picture for all is made for the main screen, whichever is meant.
    const bool isForAll = !screens.isEmpty() && !isPerScreen();
    for (const ScreenInfo& screen : isForAll ? m_host.screens() : screens)
        pictures.append(ordered(skin, screen, sizes));
    paint(pictures, sizes, {}, done, before);
}

/// The skin's picture for that screen, its size noted in `sizes`.
ScreenPicture DesktopWallpaper::ordered(Skin skin, const ScreenInfo& screen, Sizes& sizes) const
{
    const QSize size = pixels(screen);
    const QString path = m_folders.wallpapers + u'/' + Wallpaper::fileName(skin, size);
    sizes.insert(path, size);
    return {screen.connector, path};
}

/// Paints the files that have a size; the others are there, or are copies of shipped pictures.
void DesktopWallpaper::paint(const QList<ScreenPicture>& pictures, const Sizes& sizes, const QStringList& others,
    const Done& done, const Remembered& before)
{
    QMap<QString, QString> extras; // by their copy
    for (const QString& extra : others.isEmpty() ? QStringList() : extrasIn(m_folders.extras))
        extras.insert(installedURL(extra), extra);
    const auto files = [wallpaper = m_wallpaper, sizes, others, extras] {
        QString error;
        for (auto file = sizes.begin(); file != sizes.end() && error.isEmpty(); ++file) {
            if (const std::optional<Skin> skin = Wallpaper::skinOf(file.key()))
                error = paintFile(wallpaper, *skin, file.value(), file.key());
        }
        for (const QString& file : others) {
            if (error.isEmpty())
                error = extras.contains(file) ? installExtra(extras[file], file) : whyUnreadable(file);
        }
        return error;
    };
    prepare(pictures, files, done, before);
}

void DesktopWallpaper::apply(Skin skin, const Done& done)
{
    apply(skin, m_host.screens(), done);
}

void DesktopWallpaper::apply(const QString& file, const Done& done, const Remembered& before)
{
    prepare(
        onEveryScreen(file), [file] { return whyUnreadable(file); }, done, before);
}

QStringList DesktopWallpaper::extrasIn(const QString& folder)
{
    if (folder.isEmpty())
        return {};
    const QDir files(folder);
    QStringList paths;
    for (const QString& name : files.entryList({u"*.jpg"_s, u"*.jpeg"_s}, QDir::Files, QDir::Name))
        paths.append(files.absoluteFilePath(name));
    return paths;
}

QString DesktopWallpaper::installedURL(const QString& extra) const
{
    return m_folders.wallpapers + u"/extra-"_s + QFileInfo(extra).fileName();
}

void DesktopWallpaper::applyExtra(const QString& extra, const Done& done, const Remembered& before)
{
    const QString installed = installedURL(extra);
    prepare(
        onEveryScreen(installed), [extra, installed] { return installExtra(extra, installed); }, done, before);
}

QList<ScreenPicture> DesktopWallpaper::onEveryScreen(const QString& file) const
{
    QList<ScreenPicture> pictures;
    for (const ScreenInfo& screen : m_host.screens())
        pictures.append({screen.connector, file});
    return pictures;
}

} // namespace ambrelle
