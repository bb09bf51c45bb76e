// SPDX-License-Identifier: MIT

#pragma once

#include <QCache>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cmath>

namespace ambrelle {

/// Still layers of faces (plates, dials), drawn once per size and pixel ratio and shared by all widgets that show the
/// same. Bounded; the least used go first. The bound counts a layer as what it takes at one pixel a point, so that as
/// many fit on a dense screen as on any other: there it is four times as many bytes.
class LayerCache {
public:
    explicit LayerCache(int kilobytes = 8 * 1024)
        : m_layers(kilobytes)
    {
    }

    const QImage* find(const QString& key) const { return m_layers.object(key); }
    /// `scale`: device pixels of a point in the layer.
    void insert(const QString& key, const QImage& layer, double scale = 1)
    {
        const double kilobytes = static_cast<double>(layer.sizeInBytes()) / 1024 / std::max(1.0, scale * scale);
        m_layers.insert(key, new QImage(layer), std::max<qsizetype>(1, std::llround(kilobytes)));
    }
    void clear() { m_layers.clear(); }

private:
    QCache<QString, QImage> m_layers;
};

} // namespace ambrelle
