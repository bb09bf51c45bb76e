// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "drawing/Colours.h"
#include "foundation/Wording.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

MinimalSkin::MinimalSkin(const MinimalLook& look)
    : FaceRenderer(look.style(), ambrelle::dial(look.skin))
    , m_look(look)
    , m_hand(MinimalHand::of(look, *this))
{
}

Box MinimalSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    m_hand->plate(canvas, face);
    return face.bounds.inset(m_look.inset);
}

void MinimalSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    m_hand->header(canvas, content, face, title);
    content.cutTop(m_look.titleGap);
}

void MinimalSkin::warning(Canvas& canvas, const Box& box) const
{
    m_hand->warning(canvas, box);
}

Box MinimalSkin::progressDial(Canvas& canvas, const Box& box, double fraction) const
{
    return m_hand->dial(canvas, box, fraction, m_look.accent);
}

void MinimalSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    m_hand->level(canvas, box, fraction, colour);
}

void MinimalSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    m_hand->clock(canvas, plate(canvas, face), reading, face);
}

void MinimalSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month));
    monthGrid(canvas, box, reading,
        {.weekday = style().caption(),
            .day = style().caption().coloured(m_look.ink),
            .todayFill = m_look.accent,
            .todayInk = inkOn(m_look.accent),
            .todayCorner = m_hand->todayCorner()});
}

void MinimalSkin::hero(Canvas& canvas, Box& content, const QString& value, const QString& unit, bool high) const
{
    constexpr double mark = 14;
    Box band = content.cutTop(Bands::hero);
    if (high) {
        warning(canvas, band.cutRight(mark));
        band.cutRight(Bands::gap);
    }
    canvas.figure(band, value, unit, style().figure(m_look.heroCap));
    content.cutTop(Bands::gap);
}

void MinimalSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, box, QString::number(reading.percent), u"%"_s, reading.high);
    canvas.text(box.cutBottom(Bands::footer), reading.load, style().caption());
    box.cutBottom(Bands::gap);
    m_hand->history(canvas, box, reading.history, loadColour(reading.high));
}

void MinimalSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, box, reading.used, Wording::tr("GB"), reading.high);
    m_hand->parts(canvas, box.cutTop(12), reading.parts);
    box.cutTop(4);
    partsKey(canvas, *this, box, reading.parts, m_look.partFills());
}

void MinimalSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.name);
    Box footer = box.cutBottom(Bands::footer);
    if (reading.high)
        warning(canvas, footer.cutRight(14));
    canvas.text(footer, freeText(reading), style().caption());
    const Box inside = m_hand->dial(canvas, box.inset(0, 3), reading.fraction, loadColour(reading.high));
    canvas.figure(inside.inset(3), QString::number(reading.percent), u"%"_s, style().figure(26).aligned(Align::centre));
}

void MinimalSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    m_hand->battery(canvas, framed(canvas, face), reading);
}

void MinimalSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    m_hand->rates(canvas, box.cutTop(30), reading);
    box.cutTop(Bands::gap);
    m_hand->traffic(canvas, box, reading);
}

void MinimalSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    Box box = heroAndFooter(
        canvas, *this, framed(canvas, face), reading.down.value, reading.down.unit, reading.hint, style().figure(32));
    markedFigure(canvas, box.cutTop(22), u"arrow.up"_s, m_look.up, reading.up, style().figure(16));
    m_hand->level(canvas, box.centred(box.width(), 9), reading.share, m_look.accent);
}

void MinimalSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    m_hand->processes(canvas, framed(canvas, face), reading);
}

void MinimalSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    m_hand->weather(canvas, plate(canvas, face), reading, face);
}

void MinimalSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    m_hand->events(canvas, framed(canvas, face, style().caps(reading.day)), reading);
}

void MinimalSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    m_hand->player(canvas, plate(canvas, face), reading, face);
}

} // namespace ambrelle
