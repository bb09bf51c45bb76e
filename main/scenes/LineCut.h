// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPainterPath>
#include <QRectF>

namespace ambrelle {

/// What is left of a line inside `room` and outside all `holes`; stretches shorter than `least` points are left out,
/// unless nothing was cut from them. A line that meets none of them stays as it is; of others curves become polygons.
QPainterPath cutLine(const QPainterPath& line, const QRectF& room, const QList<QRectF>& holes, double least);

} // namespace ambrelle
