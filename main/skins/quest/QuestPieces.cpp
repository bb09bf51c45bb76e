// SPDX-License-Identifier: MIT

#include "skins/quest/QuestPieces.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/quest/QuestSprites.h"
#include "skins/quest/QuestStyle.h"

#include <cmath>

namespace ambrelle::quest {

using namespace Qt::StringLiterals;

namespace {

constexpr double outlineWidth = 2;
constexpr double frameWidth = 3;
constexpr double bevelWidth = 1;
constexpr double band = 10; // height of one blue
constexpr double tabLeft = 12;
constexpr double tabHeight = 20;
constexpr double tabMargin = 6; // beside the title

} // namespace

void dialogueBox(Canvas& canvas, const Box& bounds)
{
    constexpr double shadowAlpha = 0.24;
    canvas.still(u"dialogue box"_s, bounds.inset(-8), [&](Canvas& layer) {
        layer.fill(steppedPath(bounds.translated(3, 4), cornerStep, 3), faded(night, shadowAlpha));
        layer.fill(steppedPath(bounds, cornerStep, 3), night);
        layer.fill(steppedPath(bounds.inset(outlineWidth), cornerStep, 2), snow);
        layer.fill(steppedPath(bounds.inset(outlineWidth + frameWidth), cornerStep, 1), bevel);
        const Box inside = bounds.inset(outlineWidth + frameWidth + bevelWidth);
        layer.within(steppedPath(inside, cornerStep, 1), [&] {
            for (double y = inside.top(); y < inside.bottom(); y += band) {
                const double depth = (y - inside.top()) / (inside.height() - band);
                layer.fill(Box(inside.x(), y, inside.width(), band), blended(plateTop, plateBottom, bounded(depth)));
            }
        });
    });
}

void titleTab(Canvas& canvas, const SkinStyle& style, const Box& bounds, const QString& title)
{
    if (title.isEmpty())
        return;
    const TextStyle text = style.header().coloured(legible(style.accent, style.ink, night));
    const double room = bounds.width() - 2 * (tabLeft + tabMargin + frameWidth);
    const QString shown = elided(title, text, room);
    const double width = std::ceil(shape(text.face, text.size, shown)->width) + 2 * tabMargin;
    const Box tab(bounds.x() + tabLeft + frameWidth, bounds.y(), width, tabHeight);
    const Box border = tab.adjusted(-frameWidth, outlineWidth, frameWidth, frameWidth);
    canvas.fill(steppedPath(border.adjusted(-bevelWidth, 0, bevelWidth, bevelWidth), cornerStep, 1), bevel);
    canvas.fill(steppedPath(border, cornerStep, 1), snow);
    canvas.fill(tab.adjusted(0, 0, 0, -cornerStep), night);
    canvas.fill(tab.adjusted(cornerStep, 0, -cornerStep, 0), night);
    const GroundScope ground(canvas, night);
    canvas.text(tab.adjusted(tabMargin, outlineWidth, 0, 0), title, text);
}

double largeFigure(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const Units::Pair& value, FigureStyle figure)
{
    constexpr double anyWidth = 1000;
    figure.face = skin.style().number;
    if (figureWidth(value.value, value.unit, figure, anyWidth) > box.width())
        figure = figure.shadowed(night);
    return canvas.figure(box, value.value, value.unit, figure);
}

void stat(
    Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, const QString& name, bool beyond)
{
    constexpr double nameWidth = 20;
    const SkinStyle& style = skin.style();
    Box row = content.cutTop(style.heroCap + 1);
    content.cutTop(Bands::gap);
    Box mark = row.cutRight(nameWidth);
    const TextStyle text = style.row().faced(style.number).aligned(Align::right);
    canvas.text(mark.cutBottom(textSize - 2), name, text.coloured(style.accentText()));
    if (beyond)
        skin.warning(canvas, mark.cutTop(line).cutRight(line - 2));
    largeFigure(canvas, skin, row, value, skin.figure(style.heroCap));
}

void questLog(
    Canvas& canvas, const Box& box, qsizetype count, double pitch, const std::function<void(Box, qsizetype)>& draw)
{
    constexpr double indent = 6;
    constexpr double reach = 13; // of the hand over the frame
    rows(box, count, pitch, [&](const Box& row, qsizetype index) {
        draw(row.adjusted(indent, 0, 0, 0), index);
        if (index == 0)
            bob(canvas, hand(), Box(row.left() - reach, row.top(), 16, line), 1, {-2, 0});
    });
}

void itemSlot(Canvas& canvas, const Box& box, bool chosen, const SkinStyle& style)
{
    const Box place = whole(box);
    canvas.fill(steppedPath(place, cornerStep, 1), chosen ? style.accent : bevel);
    canvas.fill(steppedPath(place.inset(1), cornerStep, 1), chosen ? style.faint : hollow);
}

void pushButton(Canvas& canvas, const Box& box, const QString& symbol, bool middle, const SkinStyle& style)
{
    constexpr double symbolSize = 24;
    const QColor face = middle ? style.accent : style.faint;
    const Box button = whole(box);
    canvas.fill(steppedPath(button, cornerStep, 1), night);
    const Box relief = button.inset(cornerStep, cornerStep);
    canvas.fill(relief, darker(face));
    const Box top = relief.adjusted(0, 0, 0, -cornerStep);
    canvas.fill(top, face);
    canvas.fill(Box(top).cutTop(1), lighter(face));
    canvas.symbol(top, symbol, symbolSize, middle ? inkOn(style.accent) : style.ink);
}

} // namespace ambrelle::quest
