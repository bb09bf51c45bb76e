// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// The kinds that every skin shows alike: on the skin's plate, in its colours and typefaces, with its dial.
void drawShared(Canvas& canvas, const FaceRenderer& skin, const FocusReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const RemindersReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const CountdownReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const SkyReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const ActivityReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const QuoteReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const DevicesReading& reading, const FaceContext& face);
void drawShared(Canvas& canvas, const FaceRenderer& skin, const PhotoReading& reading, const FaceContext& face);

} // namespace ambrelle
