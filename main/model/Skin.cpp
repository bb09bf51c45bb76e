// SPDX-License-Identifier: MIT

#include "model/Skin.h"

#include "foundation/Wording.h"

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

AccentChoice swatch(const char* name, float red, float green, float blue)
{
    return {Wording::tr(name), QColor::fromRgbF(red, green, blue)};
}

QList<AccentChoice> swatches(Skin skin)
{
    switch (skin) {
    case Skin::hifi:
        return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Ice"), 0.45f, 0.85f, 1),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Red LED"), 1, 0.24f, 0.18f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Green"), 0.42f, 1, 0.5f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Violet"), 0.75f, 0.55f, 1)};
    case Skin::cockpit:
    case Skin::apollo:
        return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Amber"), 1, 0.7f, 0.1f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Green"), 0.35f, 1, 0.45f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Cyan"), 0.3f, 0.9f, 1),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "White"), 0.92f, 0.94f, 0.96f)};
    case Skin::neon:
        return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Cyan"), 0.15f, 0.9f, 1),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Violet"), 0.7f, 0.35f, 1),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Lime"), 0.6f, 1, 0.2f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Orange"), 1, 0.5f, 0.1f)};
    case Skin::overdrive:
        return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Cyan"), 0.1f, 0.95f, 1),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Magenta"), 1, 0.16f, 0.72f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Acid"), 0.62f, 1, 0.1f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Signal red"), 1, 0.26f, 0.2f)};
    default: break;
    }
    if (isLight(skin)) {
        return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Crimson"), 0.8f, 0.15f, 0.15f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Cobalt"), 0.12f, 0.35f, 0.85f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Forest"), 0.1f, 0.48f, 0.3f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Tangerine"), 0.95f, 0.45f, 0.08f),
            swatch(QT_TRANSLATE_NOOP("ambrelle", "Plum"), 0.5f, 0.22f, 0.65f)};
    }
    return {swatch(QT_TRANSLATE_NOOP("ambrelle", "Amber"), 1, 0.7f, 0.2f),
        swatch(QT_TRANSLATE_NOOP("ambrelle", "Coral"), 1, 0.45f, 0.4f),
        swatch(QT_TRANSLATE_NOOP("ambrelle", "Mint"), 0.4f, 0.95f, 0.72f),
        swatch(QT_TRANSLATE_NOOP("ambrelle", "Sky"), 0.38f, 0.75f, 1),
        swatch(QT_TRANSLATE_NOOP("ambrelle", "Violet"), 0.72f, 0.56f, 1),
        swatch(QT_TRANSLATE_NOOP("ambrelle", "Rose"), 1, 0.48f, 0.74f)};
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
    return QList<AccentChoice>{{Wording::tr("Original"), std::nullopt}} + swatches(skin);
}

} // namespace ambrelle
