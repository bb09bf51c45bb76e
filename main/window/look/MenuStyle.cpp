// SPDX-License-Identifier: MIT

#include "window/look/MenuStyle.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"
#include "window/look/AppLook.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double lineStrength = 0.2; // between ground and text
constexpr double keyStrength = 0.65;
constexpr double highContrastStrength = 0.8; // at least, where it is wished
constexpr double plateCorner = 5;
constexpr int panelMargin = 5; // around all lines
constexpr int lineHeight = 28; // at least
constexpr int lineLead = 10; // above and below the text
constexpr int separatorHeight = 11;
constexpr int lineMargin = 10; // left and right inside a line
constexpr int checkColumn = 22;
constexpr int symbolColumn = 27;
constexpr int menuSymbolSize = 17;
constexpr int markSize = 15;
constexpr int keyGap = 28;
constexpr int arrowColumn = 20;

QColor between(const QPalette& colours, double strength)
{
    return blended(colours.color(QPalette::Window), colours.color(QPalette::WindowText),
        AppLook::shared().wishes().highContrast ? std::max(strength, highContrastStrength) : strength);
}

bool isSeparator(const QStyleOptionMenuItem& item)
{
    return item.menuItemType == QStyleOptionMenuItem::Separator;
}

void drawSymbol(QPainter& painter, const QString& name, const QRectF& area, const QColor& ink)
{
    painter.save();
    painter.translate(area.center() - QPointF(markSize, markSize) / 2);
    painter.scale(markSize, markSize);
    painter.fillPath(symbolPath(name), ink);
    painter.restore();
}

/// One line of a menu, in the direction of reading.
class MenuLine {
public:
    MenuLine(QPainter& painter, const QStyleOptionMenuItem& item)
        : m_painter(painter)
        , m_item(item)
        , m_enabled(item.state.testFlag(QStyle::State_Enabled))
        , m_chosen(m_enabled && item.state.testFlag(QStyle::State_Selected))
        , m_rest(item.rect.adjusted(lineMargin, 0, -lineMargin, 0))
    {
        const QPalette& colours = item.palette;
        m_ink = m_chosen ? colours.color(QPalette::HighlightedText)
                         : colours.color(m_enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    }

    void draw()
    {
        if (m_chosen) {
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(m_item.palette.color(QPalette::Highlight));
            m_painter.drawRoundedRect(m_item.rect, plateCorner, plateCorner);
        }
        if (m_item.menuHasCheckableItems)
            drawMark(next(checkColumn));
        if (m_item.maxIconWidth > 0)
            drawIcon(next(symbolColumn));
        if (m_item.menuItemType == QStyleOptionMenuItem::SubMenu)
            drawSymbol(m_painter, isMirrored() ? u"chevron.left"_s : u"chevron.right"_s,
                placed(m_rest.adjusted(m_rest.width() - arrowColumn, 0, lineMargin, 0)), m_ink);
        drawTexts();
    }

private:
    bool isMirrored() const { return m_item.direction == Qt::RightToLeft; }
    /// From where one reads from left to right.
    QRect placed(const QRect& part) const { return QStyle::visualRect(m_item.direction, m_item.rect, part); }

    QRect next(int width)
    {
        const QRect part(m_rest.left(), m_rest.top(), width, m_rest.height());
        m_rest.setLeft(m_rest.left() + width);
        return part;
    }

    void drawMark(const QRect& area) const
    {
        if (m_item.checked)
            drawSymbol(m_painter, u"checkmark"_s, placed(area.adjusted(0, 0, markSize - checkColumn, 0)), m_ink);
    }

    void drawIcon(const QRect& area) const
    {
        const QRect place(area.left(), area.center().y() - menuSymbolSize / 2, menuSymbolSize, menuSymbolSize);
        const QIcon::Mode enabledMode = m_chosen ? QIcon::Selected : QIcon::Normal;
        m_item.icon.paint(&m_painter, placed(place), Qt::AlignCenter, m_enabled ? enabledMode : QIcon::Disabled);
    }

    void drawTexts() const
    {
        m_painter.setFont(m_item.font);
        m_painter.setPen(m_ink);
        const QRect area = placed(m_rest);
        const auto flags = [this](Qt::AlignmentFlag side) {
            return static_cast<int>(QStyle::visualAlignment(m_item.direction, side | Qt::AlignVCenter))
                | Qt::TextSingleLine;
        };
        m_painter.drawText(area, flags(Qt::AlignLeft) | Qt::TextShowMnemonic, m_item.text.section(u'\t', 0, 0));
        if (!m_chosen)
            m_painter.setPen(between(m_item.palette, keyStrength));
        // Keys are written from left to right everywhere.
        m_painter.drawText(area, flags(Qt::AlignRight) | Qt::TextForceLeftToRight, m_item.text.section(u'\t', 1));
    }

    QPainter& m_painter;
    const QStyleOptionMenuItem& m_item;
    bool m_enabled;
    bool m_chosen;
    QRect m_rest;
    QColor m_ink;
};

} // namespace

MenuStyle::MenuStyle(QObject* parent)
    : QProxyStyle(u"fusion"_s)
{
    setParent(parent);
}

QStyle* MenuStyle::shared()
{
    static auto* style = new MenuStyle(qApp);
    return style;
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_MenuHMargin:
    case PM_MenuVMargin: return panelMargin;
    case PM_MenuPanelWidth: return 0;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize MenuStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    if (isSeparator(*item))
        return {size.width(), separatorHeight};
    const QString key = item->text.section(u'\t', 1);
    // The toolkit reserves room for the longest key of all lines itself.
    const double text = QFontMetricsF(item->font).size(Qt::TextShowMnemonic, item->text.section(u'\t', 0, 0)).width();
    return {2 * lineMargin + static_cast<int>(std::ceil(text)) + (item->menuHasCheckableItems ? checkColumn : 0)
            + (item->maxIconWidth > 0 ? symbolColumn : 0) + (key.isEmpty() ? arrowColumn : keyGap),
        std::max(lineHeight, QFontMetrics(item->font).height() + lineLead)};
}

void MenuStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || !item) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isSeparator(*item))
        painter->fillRect(
            QRectF(item->rect.left() + lineMargin, item->rect.center().y(), item->rect.width() - 2 * lineMargin, 1),
            between(item->palette, lineStrength));
    else
        MenuLine(*painter, *item).draw();
    painter->restore();
}

void MenuStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element != PE_PanelMenu && element != PE_FrameMenu) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    if (element == PE_PanelMenu)
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(between(option->palette, lineStrength));
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

} // namespace ambrelle
