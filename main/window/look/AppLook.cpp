// SPDX-License-Identifier: MIT

#include "window/look/AppLook.h"

#include "drawing/Colours.h"
#include "platform/SystemAppearance.h"
#include "window/look/WindowStyle.h"

#include <QApplication>
#include <QToolTip>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const AppColours lightColours{
    .ground = 0xfff6f4f1,
    .surface = 0xffffffff,
    .field = 0xffffffff,
    .button = 0xffffffff,
    .text = 0xff1f1c1a,
    .soft = 0xff635d57,
    .faint = 0xff736d67,
    .accent = 0xff9a5510,
    .onAccent = 0xffffffff,
    .danger = 0xffb3261e,
    .onDanger = 0xffffffff,
    .track = {},
    .chosenSegment = 0xffffffff,
    .edge = {},
    .hairline = {},
    .placeholder = 0xffe5e0da,
    .bar = 0xff2b2830,
    .barText = 0xffffffff,
    .barLink = 0xffffc27a,
    .scrim = QColor(0x1f, 0x1c, 0x1a, 87),
};

const AppColours darkColours{
    .ground = 0xff26242b,
    .surface = 0xff302d36,
    .field = 0xff1d1b21,
    .button = 0xff3b3842,
    .text = 0xfff1eee9,
    .soft = 0xffbab4be,
    .faint = 0xff9a949f,
    .accent = 0xffe79a35,
    .onAccent = 0xff1d1408,
    .danger = 0xffff8f85,
    .onDanger = 0xff2a0906,
    .track = {},
    .chosenSegment = 0xff5d5867,
    .edge = {},
    .hairline = {},
    .placeholder = 0xff3a3742,
    .bar = 0xfff1eee9,
    .barText = 0xff1f1c1a,
    .barLink = 0xff8a4a0c,
    .scrim = QColor(0x08, 0x07, 0x0a, 140),
};

struct RoleType {
    double points;
    QFont::Weight weight;
    double tracking; ///< percent of the size
};

RoleType typeOf(TextRole role)
{
    switch (role) {
    case TextRole::largeTitle: return {18, QFont::DemiBold, -1.5};
    case TextRole::title: return {15, QFont::DemiBold, -1.2};
    case TextRole::heading: return {11.5, QFont::DemiBold, 0};
    case TextRole::body: return {10, QFont::Normal, 0};
    case TextRole::name: return {10, QFont::Medium, 0};
    case TextRole::cardTitle: return {10, QFont::DemiBold, 0};
    case TextRole::caption: return {9, QFont::Normal, 0};
    case TextRole::badge: return {8.25, QFont::DemiBold, 0};
    }
    return {10, QFont::Normal, 0};
}

} // namespace

LookWishes LookWishes::of(const SystemAppearance& appearance)
{
    return {appearance.isDark(), appearance.contrast(), appearance.reducesMotion(), appearance.textScale()};
}

AppLook::AppLook()
    : m_colours(colours(m_wishes))
{
}

AppLook& AppLook::shared()
{
    static AppLook look;
    return look;
}

AppColours AppLook::colours(const LookWishes& wishes)
{
    AppColours colours = wishes.dark ? darkColours : lightColours;
    const auto mixed = [&](double part) { return blended(colours.ground, colours.text, part); };
    colours.track = mixed(0.12);
    colours.edge = mixed(wishes.highContrast ? 0.6 : 0.18);
    colours.hairline = mixed(wishes.highContrast ? 0.6 : 0.09);
    if (wishes.highContrast)
        colours.soft = colours.faint = colours.text;
    return colours;
}

QPalette AppLook::palette(const LookWishes& wishes)
{
    const AppColours all = colours(wishes);
    QPalette palette(all.button, all.ground);
    for (const QPalette::ColorRole role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, all.text);
    palette.setColor(QPalette::Base, all.field);
    palette.setColor(QPalette::AlternateBase, all.ground);
    palette.setColor(QPalette::ToolTipBase, all.surface);
    palette.setColor(QPalette::PlaceholderText, all.faint);
    palette.setColor(QPalette::Highlight, all.accent);
    palette.setColor(QPalette::HighlightedText, all.onAccent);
    palette.setColor(QPalette::Link, wishes.dark ? all.accent : QColor(0xff8a4a0c));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, all.faint);
    return palette;
}

void AppLook::apply(const LookWishes& wishes)
{
    if (std::exchange(m_applied, true) && wishes == m_wishes)
        return;
    m_wishes = wishes;
    m_colours = colours(wishes);
    WindowStyle::apply();
    QApplication::setFont(font(TextRole::body));
    QApplication::setPalette(palette(wishes));
    QToolTip::setPalette(palette(wishes)); // some desktops bring one of their own
    QToolTip::setFont(font(TextRole::caption));
    Q_EMIT changed();
}

QFont AppLook::font(TextRole role) const
{
    const RoleType type = typeOf(role);
    QFont font(u"Inter"_s);
    font.setPointSizeF(type.points * m_wishes.textScale);
    font.setWeight(type.weight);
    if (type.tracking != 0)
        font.setLetterSpacing(QFont::PercentageSpacing, 100 + type.tracking);
    return font;
}

} // namespace ambrelle
