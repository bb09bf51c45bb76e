// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "model/WidgetKind.h"
#include "model/WidgetOptions.h"

#include <QDateTime>
#include <QJsonObject>
#include <QPointF>
#include <QRectF>
#include <QUuid>

namespace ambrelle {

class JsonReader;

/// The stored record of one widget. The key of a field in JSON is its name.
struct WidgetConfig {
    WidgetConfig(WidgetKind kind_, Skin skin_, WidgetScale scale_ = WidgetScale::medium, QPointF origin_ = {})
        : kind(kind_)
        , skin(skin_)
        , scale(scale_)
        , origin(origin_)
    {
    }

    QUuid id = QUuid::createUuid();
    WidgetKind kind;
    Skin skin;
    WidgetScale scale;
    QPointF origin; ///< lower left corner of the face, global points, y up
    bool pinned = false; ///< floats even when the layer is the desktop
    Backdrop backdrop = Backdrop::none;
    bool border = false;
    double opacity = 1; ///< 0 to 1
    double fit = 1; ///< multiplies the scale's factor; set by a layout
    std::optional<QString> timeZone; ///< IANA name, for a clock of another city
    std::optional<QString> city;
    std::optional<QString> photoFolder;
    int photoInterval = 10;
    bool photoFill = true; ///< crop the photo rather than show all of it
    std::optional<QString> countdownTitle;
    std::optional<QDateTime> countdownDate;
    std::optional<QDateTime> countdownStart;
    bool quoteWords = false; ///< a word of the day instead of a quote
    std::optional<QString> display; ///< the display it belongs to
    std::optional<QPointF> displayOffset; ///< from the origin of that display's frame, points, y up

    bool operator==(const WidgetConfig&) const = default;

    /// The nearest `fit` with which a widget can be seen and grasped.
    static double clampedFit(double fit);
    double effectiveScale() const { return factor(scale) * fit; }
    /// Whole points.
    QSizeF size() const;
    /// `origin` and `size`: global points, y() is the lower edge.
    QRectF frame() const { return {origin, size()}; }

    /// Fields without a value are left out; dates are seconds since 2001-01-01 00:00 UTC, points are [x, y].
    QJsonObject encode() const;
    /// Nothing when a required field is missing or a field is malformed, and then `reader` tells which one. An unknown
    /// skin becomes glass; an opacity or a fit beyond its limits is clamped.
    static std::optional<WidgetConfig> decode(JsonReader& reader);

    /// The records of a JSON array that can be read, in their order; nothing when `json` is no array.
    static std::optional<QList<WidgetConfig>> decodeList(const QByteArray& json);
    static QByteArray encodeList(const QList<WidgetConfig>& configs);
};

} // namespace ambrelle
