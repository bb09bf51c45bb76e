// SPDX-License-Identifier: MIT

#include "skins/SkinRegistry.h"

#include "model/ThemeAccent.h"
#include "skins/classic/ClassicSkin.h"
#include "skins/glass/GlassSkin.h"
#include "skins/hifi/HiFiSkin.h"
#include "skins/minimal/MinimalSkin.h"
#include "skins/plain/PlainPalette.h"
#include "skins/plain/PlainSkin.h"

#include <array>

namespace ambrelle {

namespace {

using Accent = std::optional<QColor>;
using Renderer = std::shared_ptr<const FaceRenderer>;

Renderer make(Skin skin, const Accent& accent)
{
    switch (skin) {
    case Skin::classic: return std::make_shared<ClassicSkin>();
    case Skin::hifi: return std::make_shared<HiFiSkin>(accent);
    case Skin::polar:
    case Skin::mono:
    case Skin::slate:
    case Skin::lumen:
    case Skin::field:
    case Skin::fieldDark: return std::make_shared<MinimalSkin>(MinimalLook::original(skin).accented(accent));
    case Skin::glass: return std::make_shared<GlassSkin>(accent);
    case Skin::paper:
    case Skin::neon:
    case Skin::bauhaus:
    case Skin::grove:
    case Skin::aero:
    case Skin::overdrive:
    case Skin::groove:
    case Skin::chalk:
    case Skin::quest:
    case Skin::cockpit:
    case Skin::apollo:
    case Skin::abyss:
    case Skin::atlas:
    case Skin::kyoto:
    case Skin::cork:
    case Skin::obsidian:
    case Skin::midnight:
    case Skin::pulse:
    case Skin::prism:
    case Skin::carbon:
    case Skin::velvet: return std::make_shared<PlainSkin>(plainPalette(skin), accent);
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
