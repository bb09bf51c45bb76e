// SPDX-License-Identifier: MIT

#include "window/look/SymbolIcon.h"

#include "drawing/Symbols.h"
#include "window/look/AppLook.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

class DrawnIcon : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect(QPoint(), size), mode, state);
        painter.end();
        return QPixmap::fromImage(image);
    }
};

class SymbolEngine final : public DrawnIcon {
public:
    SymbolEngine(const QString& name, const std::optional<QColor>& ink)
        : m_name(name)
        , m_ink(ink)
    {
    }

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override
    {
        const double side = std::min(area.width(), area.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(area).center() - QPointF(side, side) / 2);
        painter->scale(side, side);
        painter->fillPath(symbolPath(m_name), m_ink && mode != QIcon::Selected ? *m_ink : inkOf(mode));
        painter->restore();
    }
    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    // Asked at every painting, since the desktop may turn dark at any time.
    static QColor inkOf(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected)
            return palette.color(QPalette::HighlightedText);
        return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
    }

    QString m_name;
    std::optional<QColor> m_ink;
};

class MarkEngine final : public DrawnIcon {
public:
    void paint(QPainter* painter, const QRect& area, QIcon::Mode, QIcon::State) override
    {
        // A gap as even as the side leaves whole pixels for tiles and margins.
        const int side = std::min(area.width(), area.height());
        int gap = std::max(1, static_cast<int>(std::lround(side / 10.0)));
        gap += (side - gap) % 2;
        const int margin = static_cast<int>(std::lround(side / 10.0));
        const int tile = std::max(1, (side - gap) / 2 - margin);
        const int rest = (side - gap) / 2 - tile; // beside the tiles
        const QPoint corner(area.x() + (area.width() - side) / 2 + rest, area.y() + (area.height() - side) / 2 + rest);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(AppLook::mark);
        for (const QPoint& place : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)})
            painter->drawRoundedRect(QRect(corner + place * (tile + gap), QSize(tile, tile)), tile / 4.0, tile / 4.0);
        painter->restore();
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (const int side : {16, 22, 24, 32, 48})
            sizes.append({side, side});
        return sizes;
    }
    QIconEngine* clone() const override { return new MarkEngine(*this); }
};

} // namespace

QIcon symbolIcon(const QString& name, const std::optional<QColor>& ink)
{
    return hasSymbol(name) ? QIcon(new SymbolEngine(name, ink)) : QIcon();
}

QIcon markIcon()
{
    return QIcon(new MarkEngine);
}

QIcon programIcon()
{
    const QString file = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation, u"icons/hicolor/scalable/apps/org.ambrelle.Ambrelle.svg"_s);
    const QIcon icon(file);
    return file.isEmpty() || icon.pixmap(16).isNull() ? markIcon() : icon;
}

} // namespace ambrelle
