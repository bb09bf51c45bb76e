// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetCategory.h"
#include "window/cards/Card.h"

#include <QAbstractListModel>

#include <optional>

namespace ambrelle {

/// The gallery of widget kinds as cards under one heading: those of a category that the search finds. `Card::picture`
/// is the kind's raw value.
class WidgetsModel final : public QAbstractListModel {
    Q_OBJECT
public:
    explicit WidgetsModel(QObject* parent = nullptr);

    /// Every word of `search` has to occur in a kind's title, its description or the title of a category that it is in;
    /// case and accents do not matter. Without any hit there is no row.
    void show(WidgetCategory category, const QString& search);
    /// What is mixed into the places of pictures to come.
    void setGround(const QColor& ground);
    /// The kind that has just been added to the desktop, and says so.
    void setAdded(std::optional<WidgetKind> kind);

    std::optional<WidgetKind> kindAt(const QModelIndex& index) const; ///< none for the heading
    QModelIndex indexOf(WidgetKind kind) const; ///< invalid where it is not shown
    QModelIndex first() const { return index(1); } ///< of the kinds; invalid where nothing is found
    /// The kinds of a category that the search finds.
    static QList<WidgetKind> found(WidgetCategory category, const QString& search);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    Card card(int row) const;

    WidgetCategory m_category = WidgetCategory::all;
    QList<WidgetKind> m_kinds;
    QColor m_ground;
    std::optional<WidgetKind> m_added;
};

} // namespace ambrelle
