// SPDX-License-Identifier: MIT

#include "drawing/Symbols.h"

#include "drawing/Kept.h"
#include "drawing/Typeface.h"

#include <QFontMetricsF>
#include <QHash>

#include <algorithm>
#include <array>
#include <string_view>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct SymbolRow {
    std::string_view name;
    char16_t glyph; ///< in the family "Material Design Icons"
};

constexpr std::array symbolTable{
    SymbolRow{"airplane", 0xF01D},
    SymbolRow{"airpodspro", 0xF0B0},
    SymbolRow{"anchor", 0xF031},
    SymbolRow{"arrow.clockwise", 0xF450},
    SymbolRow{"arrow.counterclockwise", 0xF06F},
    SymbolRow{"arrow.down", 0xF045},
    SymbolRow{"arrow.down.circle", 0xF048},
    SymbolRow{"arrow.left", 0xF04D},
    SymbolRow{"arrow.right", 0xF054},
    SymbolRow{"arrow.triangle.2.circlepath", 0xF4E6},
    SymbolRow{"arrow.up", 0xF05D},
    SymbolRow{"arrow.up.arrow.down", 0xF4E2},
    SymbolRow{"arrow.up.circle", 0xF060},
    SymbolRow{"arrow.up.right", 0xF05C},
    SymbolRow{"backward.fill", 0xF4AE},
    SymbolRow{"battery.0percent", 0xF08E},
    SymbolRow{"battery.100percent", 0xF079},
    SymbolRow{"battery.100percent.bolt", 0xF085},
    SymbolRow{"battery.10percent", 0xF07A},
    SymbolRow{"battery.20percent", 0xF07B},
    SymbolRow{"battery.20percent.bolt", 0xF086},
    SymbolRow{"battery.25percent", 0xF07B},
    SymbolRow{"battery.30percent", 0xF07C},
    SymbolRow{"battery.40percent", 0xF07D},
    SymbolRow{"battery.40percent.bolt", 0xF088},
    SymbolRow{"battery.50percent", 0xF07E},
    SymbolRow{"battery.60percent", 0xF07F},
    SymbolRow{"battery.60percent.bolt", 0xF089},
    SymbolRow{"battery.70percent", 0xF080},
    SymbolRow{"battery.75percent", 0xF081},
    SymbolRow{"battery.80percent", 0xF081},
    SymbolRow{"battery.80percent.bolt", 0xF08A},
    SymbolRow{"battery.90percent", 0xF082},
    SymbolRow{"battery.alert", 0xF083},
    SymbolRow{"battery.unknown", 0xF091},
    SymbolRow{"bell.fill", 0xF09A},
    SymbolRow{"bell.slash", 0xF09B},
    SymbolRow{"bolt.fill", 0xF241},
    SymbolRow{"bolt.slash", 0xF243},
    SymbolRow{"calendar", 0xF0ED},
    SymbolRow{"calendar.badge.clock", 0xF0F0},
    SymbolRow{"calendar.day.timeline.left", 0xF0F6},
    SymbolRow{"character.book.closed", 0xF61D},
    SymbolRow{"chart.bar", 0xF128},
    SymbolRow{"checklist", 0xF5C7},
    SymbolRow{"checkmark", 0xF12C},
    SymbolRow{"checkmark.circle", 0xF5E1},
    SymbolRow{"checkmark.circle.fill", 0xF5E0},
    SymbolRow{"checkmark.square.fill", 0xF132},
    SymbolRow{"chevron.down", 0xF140},
    SymbolRow{"chevron.left", 0xF141},
    SymbolRow{"chevron.right", 0xF142},
    SymbolRow{"chevron.up", 0xF143},
    SymbolRow{"circle", 0xF130},
    SymbolRow{"circle.fill", 0xF12F},
    SymbolRow{"circle.lefthalf.filled", 0xF50E},
    SymbolRow{"clock", 0xF150},
    SymbolRow{"cloud", 0xF590},
    SymbolRow{"cloud.bolt.rain.fill", 0xF593},
    SymbolRow{"cloud.drizzle.fill", 0xF592},
    SymbolRow{"cloud.fill", 0xF590},
    SymbolRow{"cloud.fog.fill", 0xF591},
    SymbolRow{"cloud.heavyrain.fill", 0xF596},
    SymbolRow{"cloud.moon.fill", 0xF0DC},
    SymbolRow{"cloud.rain.fill", 0xF597},
    SymbolRow{"cloud.snow.fill", 0xF598},
    SymbolRow{"cloud.sun", 0xF595},
    SymbolRow{"cloud.sun.fill", 0xF595},
    SymbolRow{"cpu", 0xF35B},
    SymbolRow{"cup.and.saucer.fill", 0xF176},
    SymbolRow{"cursorarrow", 0xF1B4},
    SymbolRow{"cursorarrow.motionlines", 0xF1B5},
    SymbolRow{"desktopcomputer", 0xF1C4},
    SymbolRow{"display", 0xF379},
    SymbolRow{"display.2", 0xF37A},
    SymbolRow{"dot.radiowaves.left.and.right", 0xF002},
    SymbolRow{"drop.fill", 0xF58C},
    SymbolRow{"ellipsis", 0xF1D8},
    SymbolRow{"exclamationmark.triangle.fill", 0xF026},
    SymbolRow{"externaldrive.fill", 0xF48B},
    SymbolRow{"eye", 0xF208},
    SymbolRow{"eye.slash", 0xF209},
    SymbolRow{"eyedropper", 0xF20A},
    SymbolRow{"figure.walk", 0xF583},
    SymbolRow{"figure.walk.motion", 0xF46E},
    SymbolRow{"flag.checkered", 0xF23C},
    SymbolRow{"flame.fill", 0xF238},
    SymbolRow{"folder", 0xF24B},
    SymbolRow{"folder.badge.plus", 0xF257},
    SymbolRow{"forward.fill", 0xF4AD},
    SymbolRow{"gamecontroller", 0xF297},
    SymbolRow{"gauge", 0xF29A},
    SymbolRow{"gearshape", 0xF493},
    SymbolRow{"globe", 0xF1E7},
    SymbolRow{"hand.draw", 0xF1B6},
    SymbolRow{"headphones", 0xF2CB},
    SymbolRow{"heart", 0xF2D5},
    SymbolRow{"heart.fill", 0xF2D1},
    SymbolRow{"hifispeaker", 0xF4C3},
    SymbolRow{"hourglass", 0xF51F},
    SymbolRow{"humidity.fill", 0xF58E},
    SymbolRow{"info.circle", 0xF2FD},
    SymbolRow{"internaldrive", 0xF2CA},
    SymbolRow{"keyboard", 0xF30C},
    SymbolRow{"laptopcomputer", 0xF322},
    SymbolRow{"leaf.fill", 0xF32A},
    SymbolRow{"list.bullet", 0xF279},
    SymbolRow{"location.fill", 0xF390},
    SymbolRow{"location.slash", 0xF351},
    SymbolRow{"lock", 0xF341},
    SymbolRow{"lock.fill", 0xF33E},
    SymbolRow{"lock.open", 0xF340},
    SymbolRow{"macwindow", 0xF614},
    SymbolRow{"magicmouse", 0xF37D},
    SymbolRow{"magnifyingglass", 0xF349},
    SymbolRow{"map", 0xF34D},
    SymbolRow{"mappin", 0xF34E},
    SymbolRow{"memorychip", 0xF61A},
    SymbolRow{"minus", 0xF374},
    SymbolRow{"minus.circle.fill", 0xF376},
    SymbolRow{"moon", 0xF0DB},
    SymbolRow{"moon.circle.fill", 0xF0DA},
    SymbolRow{"moon.fill", 0xF0DC},
    SymbolRow{"moon.stars", 0xF594},
    SymbolRow{"moon.stars.fill", 0xF594},
    SymbolRow{"music.note", 0xF387},
    SymbolRow{"network", 0xF317},
    SymbolRow{"opticaldisc", 0xF025},
    SymbolRow{"paintpalette.fill", 0xF3D8},
    SymbolRow{"pause.fill", 0xF3E4},
    SymbolRow{"pencil", 0xF3EB},
    SymbolRow{"photo", 0xF2E9},
    SymbolRow{"photo.on.rectangle", 0xF2F9},
    SymbolRow{"pin", 0xF403},
    SymbolRow{"pin.slash", 0xF404},
    SymbolRow{"play.fill", 0xF40A},
    SymbolRow{"playpause.fill", 0xF40E},
    SymbolRow{"plus", 0xF415},
    SymbolRow{"plus.circle.fill", 0xF417},
    SymbolRow{"plus.square.on.square", 0xF334},
    SymbolRow{"powerplug.fill", 0xF427},
    SymbolRow{"questionmark.circle", 0xF625},
    SymbolRow{"quote.closing", 0xF27E},
    SymbolRow{"quote.opening", 0xF27E},
    SymbolRow{"rectangle.and.hand.point.up.left", 0xF1B7},
    SymbolRow{"rectangle.on.rectangle.angled", 0xF639},
    SymbolRow{"repeat", 0xF456},
    SymbolRow{"safari", 0xF18C},
    SymbolRow{"scope", 0xF1A4},
    SymbolRow{"shuffle", 0xF49D},
    SymbolRow{"slider.horizontal.3", 0xF62E},
    SymbolRow{"sparkles", 0xF068},
    SymbolRow{"speaker.wave.2.fill", 0xF57E},
    SymbolRow{"speedometer", 0xF4C5},
    SymbolRow{"square", 0xF131},
    SymbolRow{"square.2.layers.3d", 0xF328},
    SymbolRow{"square.and.arrow.down", 0xF1DA},
    SymbolRow{"square.and.arrow.up", 0xF552},
    SymbolRow{"square.grid.2x2.fill", 0xF570},
    SymbolRow{"square.grid.3x3", 0xF573},
    SymbolRow{"star.fill", 0xF4CE},
    SymbolRow{"stop.fill", 0xF4DB},
    SymbolRow{"sun.horizon.fill", 0xF59A},
    SymbolRow{"sun.max", 0xF5A8},
    SymbolRow{"sun.max.fill", 0xF599},
    SymbolRow{"sunrise.fill", 0xF59C},
    SymbolRow{"sunset.fill", 0xF59B},
    SymbolRow{"target", 0xF4FE},
    SymbolRow{"thermometer.medium", 0xF50F},
    SymbolRow{"timer", 0xF51B},
    SymbolRow{"trash", 0xF1C0},
    SymbolRow{"umbrella.fill", 0xF54A},
    SymbolRow{"waveform.path.ecg", 0xF430},
    SymbolRow{"wifi", 0xF5A9},
    SymbolRow{"wifi.slash", 0xF5AA},
    SymbolRow{"wind", 0xF59D},
    SymbolRow{"xmark", 0xF156},
    SymbolRow{"xmark.circle.fill", 0xF159},
};

static_assert(std::ranges::is_sorted(symbolTable, {}, &SymbolRow::name));

constexpr int master = 128;

QPainterPath makePath(std::string_view name, char16_t glyph)
{
    const QFont& font = loneFontOf({.family = u"Material Design Icons"_s}, master);
    const QFontMetricsF metrics(font);
    QPainterPath path;
    // The em box is the square the glyph is drawn in.
    const double baseline = master * metrics.ascent() / (metrics.ascent() + metrics.descent());
    path.addText(0, baseline, font, QChar(glyph));
    path.setFillRule(Qt::WindingFill);
    QTransform unit = QTransform::fromScale(1.0 / master, 1.0 / master);
    if (name == "quote.opening") // the font's glyph shows closing marks
        unit = unit * QTransform::fromTranslate(-1, -1) * QTransform::fromScale(-1, -1);
    return unit.map(path);
}

char16_t glyphNamed(std::string_view name)
{
    const auto* row = std::ranges::lower_bound(symbolTable, name, {}, &SymbolRow::name);
    return row != symbolTable.end() && row->name == name ? row->glyph : u'\0';
}

} // namespace

bool hasSymbol(const QString& name)
{
    return glyphNamed(name.toStdString()) != u'\0';
}

QPainterPath symbolPath(const QString& name)
{
    thread_local Kept<QHash<QString, QPainterPath>> paths;
    const auto found = paths.constFind(name);
    if (found != paths.constEnd())
        return *found;
    const std::string utf8 = name.toStdString();
    const char16_t glyph = glyphNamed(utf8);
    return *paths.insert(name, glyph ? makePath(utf8, glyph) : QPainterPath());
}

} // namespace ambrelle
