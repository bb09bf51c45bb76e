// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"
#include "platform/WindowHost.h"

#include <QAbstractListModel>
#include <QUuid>

namespace ambrelle {

/// What a list says of a widget on the desktop.
struct DesktopWidget {
    QUuid id;
    QString symbol;
    QString title; ///< "Clock · Tokyo"
    QString caption; ///< "Hi-Fi · 125% · U2720Q"
    bool pinned = false;

    /// The screen is named where there are several.
    static DesktopWidget of(const WidgetConfig& config, const QList<ScreenInfo>& screens);
    bool operator==(const DesktopWidget&) const = default;
};

/// The role under which the `DesktopWidget` of a row is given.
constexpr int desktopWidgetRole = Qt::UserRole + 1;

/// The widgets on the desktop in their order.
class DesktopWidgetsModel final : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Rows that stay are the same rows for whoever has chosen them.
    void setWidgets(const QList<DesktopWidget>& widgets);
    QUuid idAt(const QModelIndex& index) const; ///< null for an invalid index
    QModelIndex indexOf(const QUuid& id) const; ///< invalid where there is none

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<DesktopWidget> m_widgets;
};

} // namespace ambrelle

Q_DECLARE_METATYPE(ambrelle::DesktopWidget)
