// SPDX-License-Identifier: MIT

#include "window/themes/Pill.h"

#include "window/look/AccessibleRole.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr int plateHeight = 22; // at least
constexpr int plateLead = 6; // above and below the words
constexpr int platePadding = 9;
constexpr int plateSymbol = 12;
constexpr int plateGap = 5;

} // namespace

Pill::Pill(bool chief, QWidget* parent)
    : QWidget(parent)
    , m_chief(chief)
{
    setAccessibleRole(*this, QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const auto dress = [this] {
        setFont(AppLook::shared().font(TextRole::badge));
        updateGeometry();
        update();
    };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
    dress();
}

void Pill::setContent(const QString& symbol, const QString& text)
{
    m_symbol = symbol;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize Pill::sizeHint() const
{
    const int words = static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(m_text)));
    return {2 * platePadding + AppLook::shared().scaled(plateSymbol) + plateGap + words,
        std::max(plateHeight, fontMetrics().height() + plateLead)};
}

void Pill::paintEvent(QPaintEvent*)
{
    const AppColours& colours = AppLook::shared().colours();
    const QColor ink = m_chief ? colours.onAccent : colours.soft;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_chief ? colours.accent : colours.track);
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    const int side = AppLook::shared().scaled(plateSymbol);
    const QRect symbol(platePadding, (height() - side) / 2, side, side);
    const int left = symbol.right() + 1 + plateGap;
    const QRect words(left, 0, width() - platePadding - left + 1, height());
    paintSymbol(painter, QStyle::visualRect(layoutDirection(), rect(), symbol), m_symbol, ink);
    painter.setPen(ink);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), words),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter)
            | Qt::TextSingleLine,
        m_text);
}

} // namespace ambrelle
