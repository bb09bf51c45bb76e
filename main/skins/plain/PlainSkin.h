// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

struct PlainPalette;

/// The standard faces in the palette, typefaces and measures of a skin that has no painter of its own yet.
class PlainSkin final : public FaceRenderer {
public:
    PlainSkin(const PlainPalette& palette, std::optional<QColor> accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;

private:
    QColor m_plate;
};

} // namespace ambrelle
