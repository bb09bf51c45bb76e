// SPDX-License-Identifier: MIT

#pragma once

#include <QCache>
#include <QImage>
#include <QString>

namespace ambrelle {

/// Still layers of faces (plates, dials), drawn once per size and pixel ratio and shared by all widgets that show the
/// same. Bounded in bytes; the least used go first.
class LayerCache {
public:
    explicit LayerCache(int kilobytes = 8 * 1024)
        : m_layers(kilobytes)
    {
    }

    const QImage* find(const QString& key) const { return m_layers.object(key); }
    void insert(const QString& key, const QImage& layer)
    {
        m_layers.insert(key, new QImage(layer), std::max<qsizetype>(1, layer.sizeInBytes() / 1024));
    }
    void clear() { m_layers.clear(); }

private:
    QCache<QString, QImage> m_layers;
};

} // namespace ambrelle
