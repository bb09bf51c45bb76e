// SPDX-License-Identifier: MIT

#include "window/themes/KindTiles.h"

#include "window/look/AccessibleRole.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/themes/FlowLayout.h"

#include <QPainter>

#include <utility>

namespace ambrelle {

namespace {

constexpr int tileSide = 30;
constexpr int tileGap = 6;
constexpr double tileCorner = 8;
constexpr double tileSymbol = 16;

class KindTile final : public QWidget {
public:
    KindTile(WidgetKind kind, QWidget* parent)
        : QWidget(parent)
        , m_symbol(rowOf(kind).symbol)
    {
        setFixedSize(tileSide, tileSide);
        setToolTip(title(kind));
        setAccessibleName(title(kind));
        setAccessibleRole(*this, QAccessible::Graphic);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(AppLook::shared().colours().track);
        painter.drawRoundedRect(rect(), tileCorner, tileCorner);
        QRectF place(0, 0, tileSymbol, tileSymbol);
        place.moveCenter(QRectF(rect()).center());
        paintSymbol(painter, place, m_symbol, AppLook::shared().colours().soft);
    }

private:
    QString m_symbol;
};

} // namespace

KindTiles::KindTiles(QWidget* parent)
    : QWidget(parent)
{
    new FlowLayout(tileGap, tileGap, this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void KindTiles::setKinds(const QList<WidgetKind>& kinds)
{
    if (std::exchange(m_kinds, kinds) == kinds)
        return;
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    for (const WidgetKind kind : kinds) {
        auto* tile = new KindTile(kind, this);
        layout()->addWidget(tile);
        tile->show();
    }
}

} // namespace ambrelle
