// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <QMap>

#include <string_view>

namespace ambrelle {

/// A small picture of square pixels, written in letters. White space ends a row; '.' is clear, every other letter has
/// the colour that the palette names for it:
///
///     const Sprite heart(R"(.##.##.
///                           #######
///                           .#####.
///                           ...#...)", {{'#', red}});
///
/// Several texts are the frames of a moving sprite.
class Sprite {
public:
    using Palette = QMap<char, QColor>;

    Sprite(std::string_view rows, const Palette& palette);
    Sprite(std::initializer_list<std::string_view> frames, const Palette& palette);

    QSize size() const { return m_size; } ///< of the largest frame, pixels
    int frames() const { return static_cast<int>(m_frames.size()); }

    /// A frame about the middle of the box, its corner on a whole point; a pixel is a square of `pixel` points. Frames
    /// are counted on beyond the last one.
    void draw(Canvas& canvas, const Box& box, double pixel, int frame = 0) const;
    /// The frames one after the other, the first one at time 0; a moving part as large as the sprite.
    void play(Canvas& canvas, const Box& box, double pixel, double fps = 2) const;

private:
    /// The pixels of one colour, in stretches of a row.
    struct Ink {
        QColor colour;
        QList<QRect> stretches;
    };

    Box place(const Box& box, double pixel) const;

    QSize m_size{0, 0};
    QList<QList<Ink>> m_frames;
};

} // namespace ambrelle
