// SPDX-License-Identifier: MIT

#include "drawing/Sprite.h"

#include <cmath>

namespace ambrelle {

namespace {

std::vector<std::string_view> spriteRows(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    std::vector<std::string_view> rows;
    for (std::size_t from = text.find_first_not_of(space); from != std::string_view::npos;) {
        const std::size_t to = std::min(text.find_first_of(space, from), text.size());
        rows.push_back(text.substr(from, to - from));
        from = text.find_first_not_of(space, to);
    }
    return rows;
}

} // namespace

Sprite::Sprite(std::string_view rows, const Palette& palette)
    : Sprite({rows}, palette)
{
}

Sprite::Sprite(std::initializer_list<std::string_view> frames, const Palette& palette)
{
    for (const std::string_view text : frames) {
        const std::vector<std::string_view> rows = spriteRows(text);
        QMap<char, Ink> inks;
        for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
            const std::string_view row = rows[static_cast<std::size_t>(y)];
            for (std::size_t x = 0; x < row.size();) {
                const std::size_t end = std::min(row.find_first_not_of(row[x], x), row.size());
                if (palette.contains(row[x])) {
                    Ink& ink = inks[row[x]];
                    ink.colour = palette[row[x]];
                    ink.stretches.append(QRect(static_cast<int>(x), y, static_cast<int>(end - x), 1));
                }
                x = end;
            }
            m_size = m_size.expandedTo({static_cast<int>(row.size()), y + 1});
        }
        m_frames.append(inks.values());
    }
}

Box Sprite::place(const Box& box, double pixel) const
{
    const Box middle = box.centred(m_size.width() * pixel, m_size.height() * pixel);
    return {std::round(middle.x()), std::round(middle.y()), middle.width(), middle.height()};
}

void Sprite::draw(Canvas& canvas, const Box& box, double pixel, int frame) const
{
    const QPointF corner = place(box, pixel).topLeft();
    for (const Ink& ink : m_frames[frame % m_frames.size()]) {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill); // neighbours touch without a seam
        for (const QRect& stretch : ink.stretches)
            path.addRect({corner + QPointF(stretch.topLeft()) * pixel, QSizeF(stretch.size()) * pixel});
        canvas.fill(path, ink.colour);
    }
}

void Sprite::play(Canvas& canvas, const Box& box, double pixel, double fps) const
{
    if (m_frames.size() < 2) {
        draw(canvas, box, pixel);
        return;
    }
    canvas.moving(place(box, pixel), Motion::steady(fps), [&](Canvas& moving, double t) {
        draw(moving, box, pixel, static_cast<int>(std::fmod(std::floor(t * fps), static_cast<double>(frames()))));
    });
}

} // namespace ambrelle
