// SPDX-License-Identifier: MIT

#include "skins/quest/QuestSkin.h"

#include "faces/FaceKit.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/PictureTreatment.h"
#include "drawing/Plates.h"
#include "skins/quest/QuestBars.h"
#include "skins/quest/QuestPieces.h"
#include "skins/quest/QuestSprites.h"
#include "skins/quest/QuestStyle.h"
#include "skins/quest/SkySprites.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace quest;

QuestSkin::QuestSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::segments)
{
}

Box QuestSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double moreReach = 10; // of the mark into the inset
    dialogueBox(canvas, face.bounds);
    if (face.kind == WidgetKind::quote) {
        const QPointF corner = face.bounds.bottomRight() - QPointF(style().inset + moreReach, style().inset - 2);
        more(style().accent).draw(canvas, Box(corner.x(), corner.y(), moreReach, 6), 2);
    }
    return face.bounds.inset(style().inset);
}

void QuestSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    titleTab(canvas, style(), face.bounds, title);
    content.cutTop(6 + style().titleGap);
}

FigureStyle QuestSkin::figure(double cap) const
{
    constexpr double large = 60;
    constexpr double small = 20;
    FigureStyle plain = style().figure(cap);
    if (cap < small)
        return plain;
    const double depth = cap > large ? 3 : 2;
    return plain.shadowed(night, {depth, depth});
}

TextStyle QuestSkin::value() const
{
    return style().rowValue().coloured(style().accentText());
}

void QuestSkin::warning(Canvas& canvas, const Box& box) const
{
    alarm().draw(canvas, box, 1);
}

Box QuestSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    return blockRing(canvas, box, fraction, colour == style().accent ? style().accent3 : colour);
}

void QuestSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double least = 8;
    blockBar(canvas, box.centred(box.width(), std::max(least, box.height())), fraction, colour);
}

void QuestSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    blockColumns(canvas, style(), box, history, colour);
}

void QuestSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    mirroredBars(canvas, style(), box, reading);
}

void QuestSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    constexpr double gap = 4;
    const bool large = cap > textSize;
    const double side = large ? 16 : 8;
    Box line = box;
    arrow(upwards, upwards ? style().up : style().down).draw(canvas, line.cutLeft(side).centred(side, side), side / 8);
    line.cutLeft(gap);
    if (large)
        largeFigure(canvas, *this, line, rate, figure(cap).kerned());
    else
        canvas.text(line, rate.joined(), style().row().faced(style().number));
}

void QuestSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr int count = 17;
    QList<QColor> colours; // of the blocks from the left; a part that is not nothing has one at least
    double reached = 0;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        reached += bounded(parts[index].fraction);
        const qsizetype least = colours.size() + (parts[index].fraction > 0 ? 1 : 0);
        const qsizetype end =
            std::clamp<qsizetype>(std::lround(reached * count), least, std::max<qsizetype>(least, count));
        colours.resize(end, partColour(style(), index));
    }
    blockBar(canvas, box, count,
        [&](int index) { return index < colours.size() ? std::optional(colours[index]) : std::nullopt; });
}

void QuestSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    hearts(canvas, box, reading.level, reading.charging);
}

void QuestSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Sprite& sprite = skySprite(sky);
    const double side = std::min(box.width(), box.height());
    sprite.draw(canvas, box, std::max(1.0, std::floor(side / sprite.size().width())));
}

TextStyle QuestSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, style().accent, 0);
}

void QuestSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    const Box bar = line.cutLeft(5).inset(0, 3);
    canvas.fill(bar.inset(-1), night);
    canvas.fill(bar.adjusted(0, 0, -2, 0), blended(colour, snow, 0.3));
    canvas.fill(bar.adjusted(2, 0, 0, 0), colour);
    line.cutLeft(7);
}

void QuestSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    const Box place(std::round(box.center().x()) - 8, std::round(box.center().y()) - 7, 14, 14);
    canvas.fill(steppedPath(place, 2, 1), bevel);
    canvas.fill(place.inset(2), night);
    if (done)
        tick(style().accent).draw(canvas, place.moved(2, -2), 1);
}

void QuestSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    coin(lit).draw(canvas, box, 1);
}

void QuestSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double grain = 2;
    const double height = std::max(grain, std::round(column.height() * fraction / grain) * grain);
    const Box bar(std::round(column.x()), column.bottom() - height, 4, height);
    canvas.fill(bar, now ? style().accent : style().accent3);
}

void QuestSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    constexpr double pixel = 4; // points, so that all are equal at every whole scale
    canvas.fill(box.inset(-cornerStep), night);
    if (artwork) {
        const int count = static_cast<int>(std::round(box.width() / pixel));
        drawPicture(canvas, roundedPath(box, 0), artwork.image, PictureTreatment::pixels(count));
        return;
    }
    canvas.fill(box, hollow);
    note(bevel).draw(canvas, box, 2 * pixel);
}

void QuestSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    pushButton(canvas, box, symbol, middle, style());
}

std::shared_ptr<const FaceRenderer> questSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<QuestSkin>(accent);
}

} // namespace ambrelle
