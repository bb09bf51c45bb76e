// SPDX-License-Identifier: MIT

#include "window/look/SkinChooser.h"

#include "skins/SkinRegistry.h"
#include "window/look/AppLook.h"
#include "window/look/ReadingOrder.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStandardItemModel>

namespace ambrelle {

namespace {

constexpr QSize swatchSize(30, 16);
constexpr double swatchGap = 4; // before the title
constexpr int skinsShown = 14;

/// The skin's ground with a dot of its ink and one of its accent.
class SwatchEngine final : public QIconEngine {
public:
    explicit SwatchEngine(Skin skin)
        : m_skin(skin)
    {
    }

    void paint(QPainter* painter, const QRect& area, QIcon::Mode, QIcon::State) override
    {
        const SkinStyle style = styleOf(m_skin);
        const double scale = area.width() / static_cast<double>(swatchSize.width());
        const QRectF plate = QRectF(area).adjusted(0.5, 0.5, -0.5 - swatchGap * scale, -0.5);
        const QRectF box = inReadingOrder(plate, area, QGuiApplication::layoutDirection());
        const double corner = box.height() / 4;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(AppLook::shared().colours().edge, 1));
        painter->setBrush(style.ground);
        painter->drawRoundedRect(box, corner, corner);
        painter->setPen(Qt::NoPen);
        const double radius = box.height() * 0.22;
        painter->setBrush(style.ink);
        painter->drawEllipse(box.center() - QPointF(box.width() * 0.2, 0), radius, radius);
        painter->setBrush(style.accent);
        painter->drawEllipse(box.center() + QPointF(box.width() * 0.2, 0), radius, radius);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    QIconEngine* clone() const override { return new SwatchEngine(*this); }

private:
    Skin m_skin;
};

} // namespace

SkinChooser::SkinChooser(QWidget* parent)
    : QComboBox(parent)
{
    setIconSize(swatchSize);
    setMaxVisibleItems(skinsShown);
    for (const ThemeGroup shelf : allCases<ThemeGroup>()) {
        addHeading(title(shelf));
        for (const Skin skin : allCases<Skin>()) {
            if (group(skin) != shelf)
                continue;
            addItem(QIcon(new SwatchEngine(skin)), title(skin), static_cast<int>(skin));
            setItemData(count() - 1, tagline(skin), Qt::ToolTipRole);
        }
    }
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (const QVariant skin = itemData(index); skin.isValid())
            Q_EMIT chose(static_cast<Skin>(skin.toInt()));
    });
}

void SkinChooser::addHeading(const QString& title)
{
    addItem(title);
    auto* items = qobject_cast<QStandardItemModel*>(model());
    QStandardItem* heading = items->item(count() - 1);
    heading->setFlags(Qt::NoItemFlags);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    heading->setFont(bold);
}

void SkinChooser::setChosen(Skin skin)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(findData(static_cast<int>(skin)));
}

} // namespace ambrelle
