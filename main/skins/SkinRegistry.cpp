// SPDX-License-Identifier: MIT

#include "skins/SkinRegistry.h"

#include "model/ThemeAccent.h"
#include "skins/Skins.h"

#include <array>

namespace ambrelle {

namespace {

using Accent = std::optional<QColor>;
using Renderer = std::shared_ptr<const FaceRenderer>;

Renderer make(Skin skin, const Accent& accent)
{
    switch (skin) {
    case Skin::paper: return paperSkin(accent);
    case Skin::neon: return neonSkin(accent);
    case Skin::bauhaus: return bauhausSkin(accent);
    case Skin::grove: return groveSkin(accent);
    case Skin::aero: return aeroSkin(accent);
    case Skin::classic: return classicSkin(accent);
    case Skin::overdrive: return overdriveSkin(accent);
    case Skin::hifi: return hifiSkin(accent);
    case Skin::groove: return grooveSkin(accent);
    case Skin::chalk: return chalkSkin(accent);
    case Skin::quest: return questSkin(accent);
    case Skin::glass: return glassSkin(accent);
    case Skin::cockpit: return cockpitSkin(accent);
    case Skin::apollo: return apolloSkin(accent);
    case Skin::abyss: return abyssSkin(accent);
    case Skin::atlas: return atlasSkin(accent);
    case Skin::kyoto: return kyotoSkin(accent);
    case Skin::cork: return corkSkin(accent);
    case Skin::polar: return polarSkin(accent);
    case Skin::mono: return monoSkin(accent);
    case Skin::slate: return slateSkin(accent);
    case Skin::lumen: return lumenSkin(accent);
    case Skin::field: return fieldSkin(accent);
    case Skin::fieldDark: return fieldDarkSkin(accent);
    case Skin::obsidian: return obsidianSkin(accent);
    case Skin::midnight: return midnightSkin(accent);
    case Skin::pulse: return pulseSkin(accent);
    case Skin::prism: return prismSkin(accent);
    case Skin::carbon: return carbonSkin(accent);
    case Skin::velvet: return velvetSkin(accent);
    }
    Q_UNREACHABLE();
}

struct Kept {
    Renderer renderer;
    Accent accent;
};

/// The renderer of a skin, made again when its accent is another one.
Renderer rendererOf(Skin skin)
{
    static std::array<Kept, rawRows<Skin>.size()> kept;
    Kept& slot = kept[static_cast<std::size_t>(skin)];
    const Accent accent = ThemeAccent::shared().color(skin);
    if (!slot.renderer || slot.accent != accent)
        slot = {make(skin, accent), accent};
    return slot.renderer;
}

} // namespace

FaceView view(Skin skin, WidgetKind kind)
{
    const SizeClass size = sizeClass(skin, kind);
    const FaceContext face{.kind = kind, .size = size, .bounds = QRectF({}, baseSize(size))};
    Renderer renderer = rendererOf(skin);
    const QString key = rawValue(skin) + u'/' + rawValue(kind) + renderer->style().accent.name();
    return {std::move(renderer), face, key};
}

SkinStyle styleOf(Skin skin)
{
    return rendererOf(skin)->style();
}

QColor originalAccent(Skin skin)
{
    return make(skin, std::nullopt)->style().accent;
}

} // namespace ambrelle
