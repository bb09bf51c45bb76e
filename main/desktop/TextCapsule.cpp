// SPDX-License-Identifier: MIT

#include "desktop/TextCapsule.h"

#include "drawing/Canvas.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 8;

// White on this is above 10 : 1 over any wallpaper, a white one included.
const QColor capsuleColour(18, 18, 22, 232);
const QColor capsuleEdge(255, 255, 255, 64);
const QColor capsuleInk(255, 255, 255, 240);

TextStyle capsuleStyle(double size)
{
    return {.face = {u"Inter"_s, 500}, .size = size, .colour = capsuleInk, .align = Align::centre, .lines = mostLines};
}

double lineHeight(const TextStyle& style)
{
    return style.size * style.lineHeight;
}

/// Between the text and the edge of its capsule.
QSizeF padding(double textSize)
{
    return {textSize * 1.75, textSize * 0.875};
}

} // namespace

TextCapsule::TextCapsule(const QString& text, double textSize, double room)
    : m_textSize(textSize)
{
    const TextStyle style = capsuleStyle(textSize);
    const QSizeF around = padding(textSize) * 2;
    m_lines = wrapped(text, style, room - around.width());
    double widest = 0;
    for (const QString& line : m_lines)
        widest = std::max(widest, shape(style.face, style.size, line)->width);
    m_size = QSizeF(std::ceil(widest), static_cast<double>(m_lines.size()) * lineHeight(style)) + around;
}

double TextCapsule::corner() const
{
    return std::min(m_size.height() / 2, padding(m_textSize).width());
}

void TextCapsule::paint(QPainter& painter, QPointF upperLeft) const
{
    Canvas canvas(painter, {});
    const Box capsule(QRectF(upperLeft, m_size));
    const TextStyle style = capsuleStyle(m_textSize);
    canvas.fill(capsule, capsuleColour, corner());
    canvas.frame(capsule, QPen(capsuleEdge, 1), corner());
    const QSizeF around = padding(m_textSize);
    Box text = capsule.inset(around.width() - 0.5, around.height()); // the widest line must not be cut
    for (const QString& line : m_lines)
        canvas.text(text.cutTop(lineHeight(style)), line, style);
}

} // namespace ambrelle
