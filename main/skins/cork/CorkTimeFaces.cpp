// SPDX-License-Identifier: MIT

#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/cork/CorkMarks.h"
#include "skins/cork/CorkPaper.h"
#include "skins/cork/CorkSkin.h"
#include "skins/cork/CorkStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cork;

namespace {

constexpr double dateSize = 17;
constexpr double artistSize = 17;
constexpr double titleSize = 13;
constexpr double gutter = 14;

// An instant photo, its picture, and how far it hangs askew on the note.
constexpr QSizeF photoSize(122, 132);
constexpr QSizeF artworkSize(106, 100);
constexpr double photoTilt = -2.2;

/// The dashed way of a track, done up to a cross.
void pencilLine(Canvas& canvas, const Box& box, double fraction, const QColor& done, const QColor& rest)
{
    constexpr double arm = 3.6;
    const double y = box.center().y();
    const double x = box.left() + box.width() * bounded(fraction);
    const auto dashed = [&](double from, double to, const QColor& colour, double width) {
        if (to - from < 1)
            return;
        QPen pen(colour, width, Qt::CustomDashLine, Qt::RoundCap);
        pen.setDashPattern({5 / width, 4.5 / width});
        canvas.line({from, y}, {to, y}, pen);
    };
    dashed(box.left(), x - arm - 2, done, 2);
    dashed(x + arm + 2, box.right(), rest, 1.4);
    QPainterPath cross({x - arm, y - arm});
    cross.lineTo(x + arm, y + arm);
    cross.moveTo(x + arm, y - arm);
    cross.lineTo(x - arm, y + arm);
    canvas.stroke(cross, roundPen(done, 2));
}

/// A day on a strip of paper.
void dayStrip(Canvas& canvas, const FaceRenderer& skin, const Box& strip, const WeatherReading::Day& day, int index)
{
    constexpr double degrees = 1.4;
    constexpr double torn = 4;
    canvas.turned(strip.center(), index % 2 == 0 ? -degrees : degrees, [&] {
        canvas.still(
            u"strip"_s, strip.inset(-3), [&](Canvas& layer) { tornStrip(layer, strip, static_cast<unsigned>(index)); },
            index);
        const GroundScope ground(canvas, cardStock);
        dayColumn(canvas, skin, strip.adjusted(1, 2, -1, -torn), day);
    });
}

} // namespace

void CorkSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double below = 4.5;
    Box box = plate(canvas, face);
    Box line = box.cutTop(14);
    const TextStyle date = style().header().sized(dateSize);
    if (const double width = canvas.text(line, reading.meridiem, date.aligned(Align::right)); width > 0)
        line.cutRight(width + gutter);
    const double length = canvas.text(line, reading.dateLine(), date);
    const QPointF under(line.left(), Canvas::baseline(line, date) + below);
    canvas.still(
        u"underlined"_s, QRectF(under, QSizeF(length, 5)).adjusted(-6, -4, 8, 6),
        [&](Canvas& layer) { twiceUnderlined(layer, under, length, style().accent); }, std::round(length));
    box.cutTop(12);
    if (const QString tag = reading.tag(); !tag.isEmpty())
        canvas.text(box.cutBottom(footerHeight(style())), tag, style().caption());
    FigureStyle figures = figure(style().clockCap).kerned();
    figures.outline = 1;
    canvas.figure(box, reading.time(), {}, figures);
}

void CorkSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 168;
    constexpr int most = 5;
    Box box = framed(canvas, face, reading.place);
    if (!reading.days.isEmpty()) {
        const Box days = box.cutRight(daysWidth).adjusted(0, -1, 0, 2);
        box.cutRight(gutter);
        dayColumns(days, reading, most, 5, [&](const Box& strip, const WeatherReading::Day& day, qsizetype index) {
            dayStrip(canvas, *this, strip.adjusted(0, index % 2 == 0 ? 2 : 0, 0, index % 2 == 0 ? 0 : -2), day,
                static_cast<int>(index));
        });
    }
    weatherNow(canvas, *this, box, reading, 42);
}

void CorkSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double keyPitch = 48;
    constexpr double keyHeight = 32;
    Box box = plate(canvas, face).inset(0, 4);
    const Box photo = box.cutLeft(photoSize.width()).centred(photoSize.width(), photoSize.height());
    box.cutLeft(gutter + 8);
    canvas.turned(photo.center(), photoTilt, [&] {
        const double side = (photoSize.width() - artworkSize.width()) / 2;
        Box inside = photo.inset(side, side);
        const Box picture = inside.cutTop(artworkSize.height());
        canvas.still(u"polaroid"_s, photo.inset(-8), [&](Canvas& layer) { photoPaper(layer, photo, picture); });
        cover(canvas, picture, reading.artwork);
        const GroundScope ground(canvas, cardStock);
        const Box below(picture.left(), picture.bottom(), picture.width(), photo.bottom() - picture.bottom());
        canvas.text(below, reading.title, style().header().sized(titleSize).aligned(Align::centre));
    });
    controls(canvas, *this, box.cutBottom(keyHeight).centred(3 * keyPitch, keyHeight), reading.playing);
    box.cutBottom(8);
    trackTimes(canvas, box.cutBottom(footerHeight(style())), reading, style().caption());
    pencilLine(canvas, box.cutBottom(14), reading.progress, style().accent, graphite);
    canvas.paragraph(box, reading.artist, style().header().sized(artistSize).wrapped(2), Qt::AlignVCenter);
}

} // namespace ambrelle
