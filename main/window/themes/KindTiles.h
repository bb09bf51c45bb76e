// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <QList>
#include <QWidget>

namespace ambrelle {

/// Which widgets a desktop has, as a tile with its kind's symbol for each.
class KindTiles final : public QWidget {
    Q_OBJECT
public:
    explicit KindTiles(QWidget* parent = nullptr);

    void setKinds(const QList<WidgetKind>& kinds);

private:
    QList<WidgetKind> m_kinds;
};

} // namespace ambrelle
