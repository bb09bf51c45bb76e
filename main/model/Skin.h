// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"
#include "model/WidgetOptions.h"

#include <QColor>
#include <QList>

namespace ambrelle {

/// A visual theme. The raw value is what is stored; the order is the catalogue's.
enum class Skin {
    paper,
    neon,
    bauhaus,
    grove,
    aero,
    classic,
    overdrive,
    hifi,
    groove,
    chalk,
    quest,
    glass,
    cockpit,
    apollo,
    abyss,
    atlas,
    kyoto,
    cork,
    polar,
    mono,
    slate,
    lumen,
    field,
    fieldDark,
    obsidian,
    midnight,
    pulse,
    prism,
    carbon,
    velvet,
};

/// A shelf of the catalogue. `concept_` is stored as "concept", which C++ keeps for itself.
enum class ThemeGroup { concept_, minimal, modern };

/// How shared dials draw their progress: a continuous arc, an arc broken into segments, or tick marks.
enum class DialFlavor { ring, segments, ticks };

struct SkinRow {
    Skin value;
    QLatin1StringView raw;
    const char* title;
    const char* tagline;
    ThemeGroup group;
    bool light;
    std::optional<Skin> partner;
    DialFlavor dial;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr bool light = true;
inline constexpr bool dark = false;
inline constexpr std::nullopt_t none = std::nullopt;
inline constexpr std::array skinRows = std::to_array<SkinRow>({
    {Skin::paper, "paper"_L1, QT_TRANSLATE_NOOP("ambrelle", "Paper"),
        QT_TRANSLATE_NOOP("ambrelle", "A light, editorial front page"), ThemeGroup::concept_, light, Skin::mono,
        DialFlavor::ring},
    {Skin::neon, "neon"_L1, QT_TRANSLATE_NOOP("ambrelle", "Neon"),
        QT_TRANSLATE_NOOP("ambrelle", "Synthwave script, chrome numerals and neon tubes"), ThemeGroup::concept_, dark,
        none, DialFlavor::ring},
    {Skin::bauhaus, "bauhaus"_L1, QT_TRANSLATE_NOOP("ambrelle", "Bauhaus"),
        QT_TRANSLATE_NOOP("ambrelle", "Primary colours and pure geometry on cream"), ThemeGroup::concept_, light, none,
        DialFlavor::ring},
    {Skin::grove, "grove"_L1, QT_TRANSLATE_NOOP("ambrelle", "Grove"),
        QT_TRANSLATE_NOOP("ambrelle", "Didot, italics and sprigs on forest green"), ThemeGroup::concept_, dark, none,
        DialFlavor::ring},
    {Skin::aero, "aero"_L1, QT_TRANSLATE_NOOP("ambrelle", "Aero"),
        QT_TRANSLATE_NOOP("ambrelle", "Glossy glass, gel bars and bubbles"), ThemeGroup::concept_, dark, none,
        DialFlavor::ring},
    {Skin::classic, "classic"_L1, QT_TRANSLATE_NOOP("ambrelle", "Classic"),
        QT_TRANSLATE_NOOP("ambrelle", "One-bit windows on a dithered desktop"), ThemeGroup::concept_, light, none,
        DialFlavor::segments},
    {Skin::overdrive, "overdrive"_L1, QT_TRANSLATE_NOOP("ambrelle", "Overdrive"),
        QT_TRANSLATE_NOOP("ambrelle", "Hazard-yellow cyberpunk with a glitch"), ThemeGroup::concept_, dark, none,
        DialFlavor::segments},
    {Skin::hifi, "hifi"_L1, QT_TRANSLATE_NOOP("ambrelle", "Hi-Fi"),
        QT_TRANSLATE_NOOP("ambrelle", "Nixie tubes, VU needles and a tuner dial"), ThemeGroup::concept_, dark, none,
        DialFlavor::ticks},
    {Skin::groove, "groove"_L1, QT_TRANSLATE_NOOP("ambrelle", "Groove"),
        QT_TRANSLATE_NOOP("ambrelle", "Seventies stripes in orange and mustard"), ThemeGroup::concept_, dark, none,
        DialFlavor::ring},
    {Skin::chalk, "chalk"_L1, QT_TRANSLATE_NOOP("ambrelle", "Chalk"),
        QT_TRANSLATE_NOOP("ambrelle", "Hand-drawn lessons on a chalkboard"), ThemeGroup::concept_, dark, none,
        DialFlavor::ring},
    {Skin::quest, "quest"_L1, QT_TRANSLATE_NOOP("ambrelle", "Quest"),
        QT_TRANSLATE_NOOP("ambrelle", "A 16-bit adventure: hearts, HP and a quest log"), ThemeGroup::concept_, dark,
        none, DialFlavor::segments},
    {Skin::glass, "glass"_L1, QT_TRANSLATE_NOOP("ambrelle", "Glass"),
        QT_TRANSLATE_NOOP("ambrelle", "System-style widgets on rounded frosted glass"), ThemeGroup::minimal, dark, none,
        DialFlavor::ring},
    {Skin::cockpit, "cockpit"_L1, QT_TRANSLATE_NOOP("ambrelle", "Cockpit"),
        QT_TRANSLATE_NOOP("ambrelle", "Aircraft gauges, annunciators and radar above the clouds"), ThemeGroup::concept_,
        dark, none, DialFlavor::ticks},
    {Skin::apollo, "apollo"_L1, QT_TRANSLATE_NOOP("ambrelle", "Apollo"),
        QT_TRANSLATE_NOOP("ambrelle", "Mission-control registers, strip charts and teletype"), ThemeGroup::concept_,
        dark, none, DialFlavor::segments},
    {Skin::abyss, "abyss"_L1, QT_TRANSLATE_NOOP("ambrelle", "Abyss"),
        QT_TRANSLATE_NOOP("ambrelle", "Brass submarine gauges and sonar in the deep"), ThemeGroup::concept_, dark, none,
        DialFlavor::ticks},
    {Skin::atlas, "atlas"_L1, QT_TRANSLATE_NOOP("ambrelle", "Atlas"),
        QT_TRANSLATE_NOOP("ambrelle", "Legend boxes and scale bars on a topographic map"), ThemeGroup::concept_, light,
        none, DialFlavor::ticks},
    {Skin::kyoto, "kyoto"_L1, QT_TRANSLATE_NOOP("ambrelle", "Kyoto"),
        QT_TRANSLATE_NOOP("ambrelle", "Ink ensō, kanji and hanging scrolls"), ThemeGroup::concept_, light, none,
        DialFlavor::ring},
    {Skin::cork, "cork"_L1, QT_TRANSLATE_NOOP("ambrelle", "Corkboard"),
        QT_TRANSLATE_NOOP("ambrelle", "Sticky notes, polaroids and red string"), ThemeGroup::concept_, light, none,
        DialFlavor::ring},
    {Skin::polar, "polar"_L1, QT_TRANSLATE_NOOP("ambrelle", "Polar"),
        QT_TRANSLATE_NOOP("ambrelle", "Clean type on frosted ice under the aurora"), ThemeGroup::minimal, dark, none,
        DialFlavor::ring},
    {Skin::mono, "mono"_L1, QT_TRANSLATE_NOOP("ambrelle", "Mono"),
        QT_TRANSLATE_NOOP("ambrelle", "Pure black, thin numerals, hairline rules"), ThemeGroup::minimal, dark,
        Skin::paper, DialFlavor::ticks},
    {Skin::slate, "slate"_L1, QT_TRANSLATE_NOOP("ambrelle", "Slate"),
        QT_TRANSLATE_NOOP("ambrelle", "Soft dark cards on a deep, glowing desk"), ThemeGroup::minimal, dark,
        Skin::lumen, DialFlavor::ring},
    {Skin::lumen, "lumen"_L1, QT_TRANSLATE_NOOP("ambrelle", "Lumen"),
        QT_TRANSLATE_NOOP("ambrelle", "Soft white cards on a bright, airy desk"), ThemeGroup::minimal, light,
        Skin::slate, DialFlavor::ring},
    {Skin::field, "field"_L1, QT_TRANSLATE_NOOP("ambrelle", "Field"),
        QT_TRANSLATE_NOOP("ambrelle", "Industrial mono numerals with an orange accent"), ThemeGroup::minimal, light,
        Skin::fieldDark, DialFlavor::segments},
    {Skin::fieldDark, "fieldDark"_L1, QT_TRANSLATE_NOOP("ambrelle", "Field Dark"),
        QT_TRANSLATE_NOOP("ambrelle", "Field's mono numerals and orange, after dark"), ThemeGroup::minimal, dark,
        Skin::field, DialFlavor::segments},
    {Skin::obsidian, "obsidian"_L1, QT_TRANSLATE_NOOP("ambrelle", "Obsidian"),
        QT_TRANSLATE_NOOP("ambrelle", "Black glass with iridescent edges and hairline numerals"), ThemeGroup::modern,
        dark, none, DialFlavor::ring},
    {Skin::midnight, "midnight"_L1, QT_TRANSLATE_NOOP("ambrelle", "Midnight"),
        QT_TRANSLATE_NOOP("ambrelle", "A deep-navy dashboard with glowing gradient charts"), ThemeGroup::modern, dark,
        none, DialFlavor::ring},
    {Skin::pulse, "pulse"_L1, QT_TRANSLATE_NOOP("ambrelle", "Pulse"),
        QT_TRANSLATE_NOOP("ambrelle", "Activity rings and a heartbeat in red, green and cyan"), ThemeGroup::modern,
        dark, none, DialFlavor::ring},
    {Skin::prism, "prism"_L1, QT_TRANSLATE_NOOP("ambrelle", "Prism"),
        QT_TRANSLATE_NOOP("ambrelle", "Dark frosted glass that splits the light into colour"), ThemeGroup::modern, dark,
        none, DialFlavor::ring},
    {Skin::carbon, "carbon"_L1, QT_TRANSLATE_NOOP("ambrelle", "Carbon"),
        QT_TRANSLATE_NOOP("ambrelle", "Carbon fibre, bold italic figures and shift lights"), ThemeGroup::modern, dark,
        none, DialFlavor::segments},
    {Skin::velvet, "velvet"_L1, QT_TRANSLATE_NOOP("ambrelle", "Velvet"),
        QT_TRANSLATE_NOOP("ambrelle", "Plum velvet, champagne glow and fine italic type"), ThemeGroup::modern, dark,
        none, DialFlavor::ring},
});
inline constexpr std::array themeGroupRows = std::to_array<TitledRow<ThemeGroup>>({
    {ThemeGroup::concept_, "concept"_L1, QT_TRANSLATE_NOOP("ambrelle", "Concept")},
    {ThemeGroup::minimal, "minimal"_L1, QT_TRANSLATE_NOOP("ambrelle", "Minimal")},
    {ThemeGroup::modern, "modern"_L1, QT_TRANSLATE_NOOP("ambrelle", "Modern")},
});
} // namespace tables

template <> inline constexpr auto rawRows<Skin> = tables::skinRows;
template <> inline constexpr auto rawRows<ThemeGroup> = tables::themeGroupRows;

/// One line under the title in the catalogue.
inline QString tagline(Skin skin)
{
    return Wording::tr(rowOf(skin).tagline);
}
constexpr ThemeGroup group(Skin skin)
{
    return rowOf(skin).group;
}
constexpr bool isLight(Skin skin)
{
    return rowOf(skin).light;
}
/// The skin to change to when the desktop turns light or dark; most skins have none and stay.
constexpr std::optional<Skin> appearancePartner(Skin skin)
{
    return rowOf(skin).partner;
}
constexpr DialFlavor dial(Skin skin)
{
    return rowOf(skin).dial;
}

/// The shape that the skin's face for the kind is designed for.
SizeClass sizeClass(Skin skin, WidgetKind kind);

/// A named accent to choose; without a colour it is the skin's own.
struct AccentChoice {
    QString name;
    std::optional<QColor> color;

    bool operator==(const AccentChoice&) const = default;
};

/// Whether the user may choose the skin's accent.
constexpr bool supportsAccent(Skin skin)
{
    return skin != Skin::aero && skin != Skin::classic;
}
/// The swatches offered for the skin; the first, "Original", is the skin's own colour.
QList<AccentChoice> accentChoices(Skin skin);

} // namespace ambrelle
