// SPDX-License-Identifier: MIT

#include "platform/x11/root/RootPixmapPicture.h"

#include "foundation/PictureFile.h"
#include "foundation/WholeFile.h"
#include "foundation/Wording.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString savedName = u"/desktop-picture.png"_s;

/// A screen keeps its native corner under scaling; its native size comes out up to a pixel too large.
QRect nativeArea(const QScreen& screen)
{
    const QSizeF size = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
    return {screen.geometry().topLeft(),
        QSize(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())))};
}

/// Takes that pixel away where the next screen begins.
QRect trimmed(QRect area, const QRect& next)
{
    constexpr int most = 2;
    if (!area.intersects(next))
        return area;
    if (next.x() > area.x() && area.right() - next.x() < most)
        area.setRight(next.x() - 1);
    else if (next.y() > area.y() && area.bottom() - next.y() < most)
        area.setBottom(next.y() - 1);
    return area;
}

bool save(const QImage& image, const QString& path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") && writeWhole(path, bytes).isEmpty();
}

} // namespace

RootPixmapPicture::RootPixmapPicture()
    : m_worker(*this)
{
}

bool RootPixmapPicture::isAvailable() const
{
    return qGuiApp && qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
}

QString RootPixmapPicture::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("The desktop picture needs an X server, and there is none here.");
}

void RootPixmapPicture::set(const QList<ScreenPicture>& pictures, Done done)
{
    m_worker.run([pictures, areas = areas()] { return show(pictures, areas); }, std::move(done));
}

void RootPixmapPicture::read(const QString& connector, std::function<void(const QString& file)> done)
{
    const auto work = [connector] {
        const RootPixmap root;
        return root.fault().isEmpty() ? root.record().value(connector) : QString();
    };
    m_worker.run(work, std::move(done));
}

void RootPixmapPicture::remember(const QString& folder, std::function<void(const QJsonObject& memory)> done)
{
    m_worker.run([folder, connectors = areas().keys()] { return memory(folder, connectors); }, std::move(done));
}

void RootPixmapPicture::giveBack(const QJsonObject& memory, Done done)
{
    if (const QString file = memory.value("picture"_L1).toString(); !file.isEmpty()) {
        m_worker.run([file] { return showWhole(file); }, std::move(done));
        return;
    }
    const QJsonObject files = memory.value("files"_L1).toObject();
    const Areas all = areas();
    QList<ScreenPicture> pictures;
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (all.contains(file.key())) // a screen may be unplugged by now
            pictures.append({file.key(), file->toString()});
    }
    set(pictures, std::move(done));
}

RootPixmapPicture::Areas RootPixmapPicture::areas()
{
    Areas areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.insert(screen->name(), nativeArea(*screen));
    for (QRect& area : areas) {
        for (const QRect& next : std::as_const(areas))
            area = trimmed(area, next);
    }
    return areas;
}

QString RootPixmapPicture::show(const QList<ScreenPicture>& pictures, const Areas& areas)
{
    if (pictures.isEmpty())
        return {};
    RootPixmap root;
    if (!root.fault().isEmpty())
        return root.fault();
    RootPixmap::Record record = root.record();
    record.removeIf([&areas](const auto& entry) { return !areas.contains(entry.key()); }); // screens that have gone
    QImage whole = root.picture();
    if (whole.isNull()) {
        whole = QImage(root.size(), QImage::Format_RGB32);
        whole.fill(Qt::black);
    }
    QPainter painter(&whole);
    for (const ScreenPicture& picture : pictures) {
        const QRect area = areas.value(picture.connector).intersected({{}, root.size()}); // without a pixel too many
        if (area.isEmpty())
            return Wording::tr("There is no screen “%1”.").arg(picture.connector);
        const PictureFile::Decoded decoded = PictureFile::filling(picture.file, area.size());
        if (!decoded.error.isEmpty())
            return decoded.error;
        painter.drawImage(area.topLeft(), decoded.image);
        record.insert(picture.connector, picture.file);
    }
    painter.end();
    return root.publish(whole, record);
}

QString RootPixmapPicture::showWhole(const QString& file)
{
    RootPixmap root;
    if (!root.fault().isEmpty())
        return root.fault();
    const PictureFile::Decoded decoded = PictureFile::filling(file, root.size());
    return decoded.error.isEmpty() ? root.publish(decoded.image, {}) : decoded.error;
}

QJsonObject RootPixmapPicture::memory(const QString& folder, const QStringList& connectors)
{
    const RootPixmap root;
    if (!root.fault().isEmpty())
        return {};
    const RootPixmap::Record record = root.record();
    const bool isAllOurs = !record.isEmpty()
        && std::ranges::all_of(connectors, [&](const QString& connector) { return record.contains(connector); });
    if (isAllOurs) {
        QJsonObject files;
        for (const QString& connector : connectors)
            files.insert(connector, record.value(connector));
        return {{u"files"_s, files}};
    }
    const QImage picture = root.picture();
    const QString path = folder + savedName;
    return !picture.isNull() && save(picture, path) ? QJsonObject{{u"picture"_s, path}} : QJsonObject();
}

} // namespace ambrelle
