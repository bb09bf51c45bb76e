// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalSkin.h"

#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// The skin in the manner of its look's treatment.
std::shared_ptr<const FaceRenderer> minimalSkin(Skin skin, const std::optional<QColor>& accent)
{
    const MinimalLook look = MinimalLook::original(skin).accented(accent);
    switch (look.panel) {
    case PanelTreatment::frost: return makeFrostSkin(look);
    case PanelTreatment::hairline: return makeHairlineSkin(look);
    case PanelTreatment::card: return makeCardSkin(look);
    case PanelTreatment::casing: return makeCasingSkin(look);
    }
    Q_UNREACHABLE();
}

} // namespace

std::shared_ptr<const FaceRenderer> polarSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::polar, accent);
}

std::shared_ptr<const FaceRenderer> monoSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::mono, accent);
}

std::shared_ptr<const FaceRenderer> slateSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::slate, accent);
}

std::shared_ptr<const FaceRenderer> lumenSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::lumen, accent);
}

std::shared_ptr<const FaceRenderer> fieldSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::field, accent);
}

std::shared_ptr<const FaceRenderer> fieldDarkSkin(const std::optional<QColor>& accent)
{
    return minimalSkin(Skin::fieldDark, accent);
}

MinimalSkin::MinimalSkin(const MinimalLook& look)
    : FaceRenderer(look.style(), ambrelle::dial(look.skin))
    , m_look(look)
{
}

Box MinimalSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    panel(canvas, face);
    return face.bounds.inset(m_look.inset);
}

void MinimalSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    heading(canvas, content, face, title);
    content.cutTop(m_look.titleGap);
}

void MinimalSkin::warning(Canvas& canvas, const Box& box) const
{
    canvas.symbol(box, u"exclamationmark.triangle.fill"_s, 11, m_look.warn);
}

void MinimalSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    const QColor colour = upwards ? m_look.accent2 : style().accentText();
    markedFigure(canvas, box, upwards ? u"arrow.up"_s : u"arrow.down"_s, colour, rate, style().figure(cap));
}

void MinimalSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    Box box = heroAndFooter(
        canvas, *this, framed(canvas, face), reading.down.value, reading.down.unit, reading.hint, style().figure(32));
    markedFigure(canvas, box.cutTop(22), u"arrow.up"_s, m_look.up, reading.up, style().figure(16));
    level(canvas, box.centred(box.width(), 9), reading.share, m_look.accent);
}

void MinimalSkin::ordinal(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 20;
    canvas.text(line.cutLeft(width), u"%1"_s.arg(index + 1, 2, 10, QLatin1Char('0')), style().caption());
}

void MinimalSkin::currentWeather(Canvas& canvas, Box box, const WeatherReading& reading) const
{
    constexpr double picture = 40;
    constexpr double gap = 8;
    canvas.text(box.cutBottom(Bands::footer), reading.range(), style().caption());
    canvas.text(box.cutBottom(18), reading.description, style().row());
    drawPictogram(canvas, box.cutRight(picture), reading.sky, pictograms());
    box.cutRight(gap);
    // The degree sign at the height it has beside its figure, not on the base line of a unit.
    canvas.figure(box, reading.degrees(), {}, style().figure(look().temperatureCap));
}

} // namespace ambrelle
