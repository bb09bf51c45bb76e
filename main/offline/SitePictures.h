// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FacePainter.h"
#include "scenes/Scene.h"

#include <QColor>
#include <QImage>

#include <map>
#include <optional>

namespace ambrelle {

/// Single things of a desktop as pictures, and what can be told of their colours.
namespace SitePictures {

inline constexpr double scale = 2; ///< pixels per point
inline constexpr double margin = 20; ///< points around a face, for the shadow of the largest one

/// The face with its margin, as it rests.
QImage face(const FaceView& view, const FaceLook& look, const std::shared_ptr<const Reading>& reading);

struct Mark {
    QImage picture;
    QRectF place; ///< points of the screen, y down; exactly what the picture shows
};
/// That mark of the scene as far as it is on a screen of that size, without empty edges; nothing where it is not seen.
std::optional<Mark> mark(const Scene& scene, qsizetype index, const QSizeF& screen);

QColor mean(const QImage& picture); ///< of an opaque one

/// Counts the colours of marks.
class ColourCount {
public:
    void add(const QImage& picture); ///< what of it can be seen, translucent or not
    QList<QColor> most(qsizetype count) const; ///< the most frequent colours, at most so many, without near duplicates

private:
    struct Bin {
        qint64 count = 0;
        qint64 red = 0;
        qint64 green = 0;
        qint64 blue = 0;
    };

    std::map<quint32, Bin> m_bins; // of similar colours
};

} // namespace SitePictures

} // namespace ambrelle
