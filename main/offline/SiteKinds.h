// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QSizeF>

namespace ambrelle {

/// What the catalogue site says of the kinds of widgets, made from the catalogue's data (SiteExporter).
class SiteKinds {
public:
    explicit SiteKinds(const QJsonObject& catalogue);

    struct Picture {
        QString kind;
        qsizetype theme; ///< its place in the catalogue
        QString file; ///< of the widget in that theme
        QSizeF size; ///< points
    };
    /// A widget to show for each kind that stands in a layout, from as many themes as can be.
    QList<Picture> pictures() const;
    /// Every kind, as templates want it.
    QJsonArray table() const;

    /// The picture of a kind in the table.
    static QString file(const QString& kind);
    /// Of the picture of a widget with that frame, points.
    static QSizeF pictureSize(const QSizeF& frame, const QJsonObject& catalogue);

private:
    /// A few of these themes, other ones for each number, from all over the catalogue.
    QJsonArray some(const QList<QJsonObject>& having, qsizetype number) const;

    QJsonObject m_catalogue;
    QList<QJsonObject> m_themes;
};

} // namespace ambrelle
