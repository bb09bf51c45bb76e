// SPDX-License-Identifier: MIT

#include "window/look/Button.h"

#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/WindowStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// Of a line, in whole points that have room for it.
int lineWidth(const QFont& font, const QString& line)
{
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(line)));
}

constexpr int buttonMargin = 13; // left and right of what it shows
constexpr int linkMargin = 4;
constexpr int buttonSymbol = 16;
constexpr int buttonGap = 7;
constexpr double buttonDot = 8;
constexpr double buttonDotRing = 1.5; // of the ground, around it
constexpr double buttonDotInset = 3; // of the dot from the corner

} // namespace

Button::Button(const QString& text, Kind kind, QWidget* parent)
    : QPushButton(parent)
    , m_kind(kind)
{
    setText(text);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const auto dress = [this] { setFont(AppLook::shared().font(TextRole::name)); };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
    dress();
}

Button* Button::symbolOnly(const QString& symbol, const QString& name, Kind kind)
{
    auto* button = new Button({}, kind);
    button->setSymbol(symbol);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

void Button::setText(const QString& text)
{
    m_title = text;
    QPushButton::setText(QString(text).replace(u'&', u"&&"_s));
}

void Button::setKind(Kind kind)
{
    m_kind = kind;
    updateGeometry();
    update();
}

void Button::setSymbol(const QString& name)
{
    m_symbol = name;
    updateGeometry();
    update();
}

void Button::setNews(const QString& news)
{
    setAccessibleDescription(news);
    setToolTip(news.isEmpty() ? accessibleName() : accessibleName() + u'\n' + news);
    update();
}

QSize Button::sizeHint() const
{
    const int height = std::max(WindowStyle::controlHeight, fontMetrics().height() + 2 * WindowStyle::verticalPadding);
    if (m_title.isEmpty())
        return {height, height};
    const int symbol = m_symbol.isEmpty() ? 0 : AppLook::shared().scaled(buttonSymbol) + buttonGap;
    const int margin = m_kind == Kind::link ? linkMargin : buttonMargin;
    return {lineWidth(font(), m_title) + symbol + 2 * margin, height};
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

QColor Button::plate() const
{
    const AppColours& colours = AppLook::shared().colours();
    switch (m_kind) {
    case Kind::plain: return colours.button;
    case Kind::primary: return isEnabled() ? colours.accent : colours.track;
    case Kind::danger: return isEnabled() ? colours.danger : colours.track;
    case Kind::link:
    case Kind::quiet: return {};
    }
    return {};
}

QColor Button::ink() const
{
    const AppColours& colours = AppLook::shared().colours();
    if (!isEnabled())
        return colours.faint;
    switch (m_kind) {
    case Kind::primary: return colours.onAccent;
    case Kind::danger: return colours.onDanger;
    case Kind::link: return palette().color(QPalette::Link);
    case Kind::plain:
    case Kind::quiet: return palette().color(QPalette::WindowText); // they may stand on another ground
    }
    return {};
}

void Button::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QColor ink = this->ink();
    if (m_kind != Kind::link)
        drawPlate(painter, {option, this, plate(), ink, m_kind == Kind::plain});
    QFont face = font();
    face.setUnderline(m_kind == Kind::link && isEnabled() && underMouse());
    painter.setFont(face);
    painter.setPen(ink);
    const int side = AppLook::shared().scaled(buttonSymbol);
    const int symbolRoom = m_symbol.isEmpty() ? 0 : side + (m_title.isEmpty() ? 0 : buttonGap);
    const int margin = m_title.isEmpty() ? 0 : m_kind == Kind::link ? linkMargin : buttonMargin;
    const int room = width() - symbolRoom - 2 * margin;
    const QString shown =
        lineWidth(font(), m_title) <= room ? m_title : fontMetrics().elidedText(m_title, Qt::ElideRight, room);
    const int wide = symbolRoom + lineWidth(font(), shown);
    QRect area((width() - wide) / 2, 0, wide, height());
    if (symbolRoom > 0) {
        QRect place(area.left(), (height() - side) / 2, side, side);
        paintSymbol(painter, QStyle::visualRect(layoutDirection(), rect(), place), m_symbol, ink);
    }
    area.setLeft(area.left() + symbolRoom);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), area), Qt::AlignCenter | Qt::TextSingleLine, shown);
    if (!accessibleDescription().isEmpty() && m_title.isEmpty())
        paintNews(painter);
}

void Button::paintNews(QPainter& painter) const
{
    const AppColours& colours = AppLook::shared().colours();
    const double radius = buttonDot / 2;
    const double x = buttonDotInset + radius;
    const QPointF middle(isRightToLeft() ? x : width() - x, x);
    painter.setPen(Qt::NoPen);
    for (const auto& [reach, colour] : {std::pair(buttonDotRing, colours.ground), {0.0, colours.accent}}) {
        painter.setBrush(colour);
        painter.drawEllipse(middle, radius + reach, radius + reach);
    }
}

} // namespace ambrelle
