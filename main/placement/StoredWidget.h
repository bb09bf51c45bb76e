// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"

#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QSizeF>

#include <optional>

namespace ambrelle {

/// What is known about the display a widget belongs to, beside `display` and `displayOffset` of its record.
struct WidgetHome {
    QSizeF size; ///< of the display when `displayOffset` was recorded, points
    QString connector; ///< of the display then
    double fit = 1; ///< of the widget there
    double fullFit = 1; ///< of the widget where no small display shrinks it

    bool operator==(const WidgetHome&) const = default;
};

/// The screen a widget was last placed on, at home or not.
struct WidgetStand {
    QString screen; ///< its identifier
    QRectF frame; ///< of the screen then, global points, y up

    bool operator==(const WidgetStand&) const = default;
};

/// A widget and where it belongs. Its record's `origin` and `fit` say how it stands now.
struct StoredWidget {
    WidgetConfig config;
    std::optional<WidgetHome> home{}; ///< none: nobody knows
    std::optional<WidgetStand> stand{};

    bool operator==(const StoredWidget&) const = default;

    /// `home` and `stand`; empty without a home.
    QJsonObject encodePlace() const;
    /// Takes over what can be read in what encodePlace() gave, or in the older form [width, height] of a home.
    void decodePlace(const QJsonValue& stored);
};

/// Gives a new identifier to each widget that lacks one or whose own is `taken` or that of an earlier one.
void makeDistinct(QList<StoredWidget>& widgets, QSet<QUuid> taken);

} // namespace ambrelle
