// SPDX-License-Identifier: MIT

#include "window/themes/ThemeFacts.h"

#include "foundation/Wording.h"
#include "model/Composition.h"
#include "model/ThemeStore.h"
#include "window/themes/ThemeTexts.h"

#include <algorithm>

namespace ambrelle {

namespace {

ThemeFacts factsOf(Skin skin)
{
    ThemeFacts facts{
        .title = title(skin), .tagline = tagline(skin), .isLight = isLight(skin), .skin = skin, .wallpaper = skin};
    for (const Spot& spot : Composition::preset(skin).spots)
        facts.kinds.append(spot.kind);
    return facts;
}

ThemeFacts factsOf(const SavedTheme& theme)
{
    const QString date = mediumDate(theme.created.toLocalTime().date());
    ThemeFacts facts{.title = theme.name,
        .tagline = Wording::tr("Saved %1").arg(date),
        .isLight = isLight(theme.dominantSkin()),
        .isSaved = true,
        .wallpaper = theme.wallpaper};
    for (const SavedWidget& widget : theme.widgets)
        facts.kinds.append(widget.config.kind);
    return facts;
}

} // namespace

std::optional<ThemeFacts> ThemeFacts::of(const ThemeChoice& theme, const ThemeStore& store)
{
    if (const Skin* skin = std::get_if<Skin>(&theme))
        return factsOf(*skin);
    const auto found = std::ranges::find(store.themes(), std::get<QUuid>(theme), &SavedTheme::id);
    return found == store.themes().end() ? std::nullopt : std::optional(factsOf(*found));
}

} // namespace ambrelle
