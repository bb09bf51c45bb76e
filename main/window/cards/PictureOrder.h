// SPDX-License-Identifier: MIT

#pragma once

#include "offline/DesktopSnapshots.h"

#include <QDateTime>
#include <QHash>
#include <QMetaType>
#include <QSize>
#include <QString>

#include <memory>

namespace ambrelle {

/// Which picture a card shows.
struct PictureKey {
    enum class Source { wallpaper, desktop, file };

    Source source = Source::wallpaper;
    QString name; ///< a skin's raw value, the key of a miniature, or a path
    QDateTime time{}; ///< a file's last change: one written over is another picture
    std::shared_ptr<const DesktopSnapshots::Wish> wish{}; ///< what to draw, for a desktop; `name` stands for it

    static PictureKey wallpaper(Skin skin) { return {Source::wallpaper, rawValue(skin)}; }
    static PictureKey desktop(const DesktopSnapshots::Wish& wish)
    {
        return {Source::desktop, wish.key, {}, std::make_shared<const DesktopSnapshots::Wish>(wish)};
    }
    static PictureKey file(const QString& path, const QDateTime& time) { return {Source::file, path, time}; }

    bool operator==(const PictureKey& other) const
    {
        return source == other.source && name == other.name && time == other.time;
    }
};

inline size_t qHash(const PictureKey& key, size_t seed = 0)
{
    return qHashMulti(seed, static_cast<int>(key.source), key.name, key.time);
}

/// A picture as a card paints it: filling that many device pixels, cut in its middle.
struct PictureOrder {
    PictureKey key;
    QSize pixels;
    double corner = 0; ///< radius of its round corners, device pixels

    bool operator==(const PictureOrder&) const = default;
};

inline size_t qHash(const PictureOrder& order, size_t seed = 0)
{
    return qHashMulti(seed, order.key, order.pixels.width(), order.pixels.height(), order.corner);
}

} // namespace ambrelle

Q_DECLARE_METATYPE(ambrelle::PictureKey)
