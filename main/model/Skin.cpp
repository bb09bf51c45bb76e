#include "model/Skin.h"

namespace ambrelle {

namespace {

bool isWide(Skin skin, WidgetKind kind)
{
    using enum WidgetKind;
    switch (kind) {
    case clock:
    case weather:
    case network:
    case nowPlaying: return true;
    case downloads: return skin == Skin::paper || skin == Skin::neon;
    case memory: return skin == Skin::classic;
    default: return false;
    }
}

AccentChoice swatch(const char16_t* name, float red, float green, float blue)
{
    return {QString::fromUtf16(name), QColor::fromRgbF(red, green, blue)};
}

QList<AccentChoice> swatches(Skin skin)
{
    switch (skin) {
    case Skin::hifi:
        return {swatch(u"Ice", 0.45f, 0.85f, 1), swatch(u"Red LED", 1, 0.24f, 0.18f), swatch(u"Green", 0.42f, 1, 0.5f),
            swatch(u"Violet", 0.75f, 0.55f, 1)};
    case Skin::cockpit:
    case Skin::apollo:
        return {swatch(u"Amber", 1, 0.7f, 0.1f), swatch(u"Green", 0.35f, 1, 0.45f), swatch(u"Cyan", 0.3f, 0.9f, 1),
            swatch(u"White", 0.92f, 0.94f, 0.96f)};
    case Skin::neon:
        return {swatch(u"Cyan", 0.15f, 0.9f, 1), swatch(u"Violet", 0.7f, 0.35f, 1), swatch(u"Lime", 0.6f, 1, 0.2f),
            swatch(u"Orange", 1, 0.5f, 0.1f)};
    case Skin::overdrive:
        return {swatch(u"Cyan", 0.1f, 0.95f, 1), swatch(u"Magenta", 1, 0.16f, 0.72f), swatch(u"Acid", 0.62f, 1, 0.1f),
            swatch(u"Signal red", 1, 0.26f, 0.2f)};
    default: break;
    }
    if (isLight(skin)) {
        return {swatch(u"Crimson", 0.8f, 0.15f, 0.15f), swatch(u"Cobalt", 0.12f, 0.35f, 0.85f),
            swatch(u"Forest", 0.1f, 0.48f, 0.3f), swatch(u"Tangerine", 0.95f, 0.45f, 0.08f),
            swatch(u"Plum", 0.5f, 0.22f, 0.65f)};
    }
    return {swatch(u"Amber", 1, 0.7f, 0.2f), swatch(u"Coral", 1, 0.45f, 0.4f), swatch(u"Mint", 0.4f, 0.95f, 0.72f),
        swatch(u"Sky", 0.38f, 0.75f, 1), swatch(u"Violet", 0.72f, 0.56f, 1), swatch(u"Rose", 1, 0.48f, 0.74f)};
}

} // namespace

SizeClass sizeClass(Skin skin, WidgetKind kind)
{
    if (isShared(kind))
        return kind == WidgetKind::quote ? SizeClass::medium : SizeClass::small;
    return isWide(skin, kind) ? SizeClass::medium : SizeClass::small;
}

QList<AccentChoice> accentChoices(Skin skin)
{
    return QList<AccentChoice>{{QStringLiteral("Original"), std::nullopt}} + swatches(skin);
}

} // namespace ambrelle
