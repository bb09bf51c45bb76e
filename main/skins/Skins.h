// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <memory>
#include <optional>

namespace ambrelle {

// The faces of each skin, made by a function in the skin's own folder. `accent` is the user's override; skins that take
// none leave it alone.
std::shared_ptr<const FaceRenderer> paperSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> neonSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> bauhausSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> groveSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> aeroSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> classicSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> overdriveSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> hifiSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> grooveSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> chalkSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> questSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> glassSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> cockpitSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> apolloSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> abyssSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> atlasSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> kyotoSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> corkSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> polarSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> monoSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> slateSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> lumenSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> fieldSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> fieldDarkSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> obsidianSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> midnightSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> pulseSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> prismSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> carbonSkin(const std::optional<QColor>& accent);
std::shared_ptr<const FaceRenderer> velvetSkin(const std::optional<QColor>& accent);

} // namespace ambrelle
