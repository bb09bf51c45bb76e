// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalLook.h"

#include "drawing/Colours.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

Typeface manrope(int weight, double cell = 1)
{
    return {.family = u"Manrope"_s, .weight = weight, .capRatio = 0.75, .cell = cell};
}

Typeface inter(int weight)
{
    return {.family = u"Inter"_s, .weight = weight, .capRatio = 0.73};
}

Typeface jetBrainsMono(int weight)
{
    return {.family = u"JetBrains Mono"_s, .weight = weight, .capRatio = 0.76};
}

MinimalLook polar()
{
    constexpr double leastAlpha = 0.78; // keeps the ink's contrast over pure white
    return {
        .skin = Skin::polar,
        .ink = QColor(0xF4, 0xFB, 0xFF),
        .soft = QColor(0xC3, 0xDA, 0xE7),
        .faint = QColor(0x46, 0x64, 0x7A),
        .accent = QColor(0x7F, 0xE9, 0xD0),
        .accent2 = QColor(0xB4, 0x9B, 0xFF),
        .panelFill = faded(QColor(0x0C, 0x20, 0x30), leastAlpha),
        .panel = PanelTreatment::frost,
        .corner = 22,
        .number = manrope(200, 0.92),
        .label = manrope(600),
        .body = manrope(500),
        .tracking = 0.2,
        .inset = 18,
        .plateBorder = 1.2,
        .accent3 = QColor(0x8F, 0xC7, 0xFF),
        .up = QColor(0x7F, 0xE9, 0xD0),
        .down = QColor(0xB4, 0x9B, 0xFF),
        .warn = QColor(0xFF, 0x9C, 0x8F),
        .border = Qt::white,
        .cloud = QColor(0xF4, 0xFB, 0xFF),
        .smallNumber = manrope(300, 0.92),
        .rowGap = 5.5,
        .clockCap = 72,
        .heroCap = 42,
        .temperatureCap = 52,
        .wash = 0.25,
        .tint = 0.16,
    };
}

MinimalLook mono()
{
    return {
        .skin = Skin::mono,
        .ink = Qt::white,
        .soft = QColor(0xA8, 0xA8, 0xA8),
        .faint = QColor(0x2E, 0x2E, 0x2E),
        .accent = Qt::white,
        .accent2 = QColor(0x8C, 0x8C, 0x8C),
        .panelFill = Qt::black,
        .panel = PanelTreatment::hairline,
        .corner = 0,
        .number = {.family = u"Inter Display"_s, .weight = 100, .capRatio = 0.74},
        .label = inter(500),
        .body = inter(400),
        .tracking = 0.2,
        .numbered = true,
        .inset = 16,
        .plateBorder = 1,
        .accent3 = QColor(0x5A, 0x5A, 0x5A),
        .up = Qt::white,
        .down = QColor(0x9A, 0x9A, 0x9A),
        .warn = Qt::white,
        .border = QColor(0x2E, 0x2E, 0x2E),
        .cloud = Qt::white,
        .smallNumber = {.family = u"Inter Display"_s, .weight = 200, .capRatio = 0.74},
        .rowGap = 4,
        .titleGap = 8,
        .clockCap = 74,
        .heroCap = 42,
        .temperatureCap = 54,
        .photoMat = 1,
        .seconds = true,
    };
}

/// What the cards by night and by day have in common: a change of light moves nothing.
MinimalLook cards()
{
    return {
        .panel = PanelTreatment::card,
        .corner = 22,
        .number = manrope(600, 0.94),
        .label = manrope(700),
        .body = manrope(500),
        .inset = 18,
        .smallNumber = manrope(600, 0.94),
        .rowSize = 12,
        .rowGap = 5.5,
        .titleGap = 4,
        .photoMat = 0,
    };
}

MinimalLook slate()
{
    MinimalLook look = cards();
    look.skin = Skin::slate;
    look.ink = QColor(0xF2, 0xF4, 0xF8);
    look.soft = QColor(0xA9, 0xB0, 0xBE);
    look.faint = QColor(0x3A, 0x3F, 0x4B);
    look.accent = QColor(0x7E, 0x9A, 0xFF);
    look.accent2 = QColor(0x4F, 0xD8, 0xB4);
    look.accent3 = QColor(0xF2, 0xA6, 0x5A);
    look.up = look.accent2;
    look.down = look.accent;
    look.warn = QColor(0xFF, 0x85, 0x77);
    look.panelFill = QColor(0x23, 0x26, 0x2E);
    look.plateBorder = 1;
    look.border = faded(Qt::white, 0.06);
    look.shadow = faded(Qt::black, 0.035);
    look.cloud = look.ink;
    look.wash = 0.40;
    look.tint = 0.16;
    look.coverWash = 0.10;
    return look;
}

MinimalLook lumen()
{
    MinimalLook look = cards();
    look.skin = Skin::lumen;
    look.ink = QColor(0x1C, 0x21, 0x30);
    look.soft = QColor(0x5C, 0x65, 0x77);
    look.faint = QColor(0xE4, 0xE8, 0xF0);
    look.accent = QColor(0x42, 0x63, 0xEB);
    look.accent2 = QColor(0x08, 0x7A, 0x5A);
    look.accent3 = QColor(0xB4, 0x53, 0x0E);
    look.up = look.accent2;
    look.down = look.accent;
    look.warn = QColor(0xC9, 0x2A, 0x2A);
    look.panelFill = Qt::white;
    look.border = look.faint;
    look.shadow = faded(look.ink, 0.012);
    look.cloud = QColor(0xB9, 0xC3, 0xD6); // seen on white
    look.wash = 0.22;
    look.tint = 0.10;
    look.coverWash = 0.06;
    return look;
}

/// The measures of the instrument, by day and after hours.
MinimalLook instrument()
{
    return {
        .panel = PanelTreatment::casing,
        .corner = 6,
        .number = jetBrainsMono(300),
        .label = jetBrainsMono(700),
        .body = jetBrainsMono(400),
        .uppercaseLabels = true,
        .tracking = 1,
        .numbered = true,
        .inset = 14,
        .plateBorder = 1,
        .smallNumber = jetBrainsMono(300),
        .titleSize = 11,
        .rowSize = 12,
        .titleGap = 8,
        .temperatureCap = 46,
        .photoMat = 8,
        .seconds = true,
    };
}

MinimalLook field()
{
    MinimalLook look = instrument();
    look.skin = Skin::field;
    look.ink = QColor(0x1A, 0x1A, 0x18);
    look.soft = QColor(0x5A, 0x58, 0x50);
    look.faint = QColor(0xC9, 0xC6, 0xBB);
    look.accent = QColor(0xC8, 0x42, 0x0A);
    look.accent2 = look.ink;
    look.accent3 = QColor(0x7A, 0x77, 0x6C);
    look.up = look.ink;
    look.down = look.accent;
    look.warn = QColor(0xB3, 0x26, 0x0F);
    look.panelFill = QColor(0xEC, 0xEA, 0xE3);
    look.border = look.faint;
    look.cloud = look.ink;
    look.key = look.ink;
    look.wash = 0.55;
    return look;
}

MinimalLook fieldDark()
{
    MinimalLook look = instrument();
    look.skin = Skin::fieldDark;
    look.ink = QColor(0xED, 0xEB, 0xE4);
    look.soft = QColor(0xA1, 0x9E, 0x94);
    look.faint = QColor(0x35, 0x34, 0x2F);
    look.accent = QColor(0xFF, 0x7A, 0x2E);
    look.accent2 = look.ink;
    look.accent3 = QColor(0x6C, 0x6A, 0x62);
    look.up = look.ink;
    look.down = look.accent;
    look.warn = QColor(0xFF, 0x5A, 0x3C);
    look.panelFill = QColor(0x17, 0x17, 0x16);
    look.border = look.faint;
    look.cloud = look.ink;
    look.key = look.soft;
    look.wash = 0.6;
    return look;
}

} // namespace

MinimalLook MinimalLook::original(Skin skin)
{
    switch (skin) {
    case Skin::mono: return mono();
    case Skin::slate: return slate();
    case Skin::lumen: return lumen();
    case Skin::field: return field();
    case Skin::fieldDark: return fieldDark();
    default: return polar();
    }
}

MinimalLook MinimalLook::accented(const std::optional<QColor>& override) const
{
    MinimalLook look = *this;
    look.accent = override.value_or(accent);
    return look;
}

SkinStyle MinimalLook::style() const
{
    return {
        .title = label.tracked(tracking),
        .body = body,
        .number = number,
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent,
        .up = up,
        .down = down,
        .uppercase = uppercaseLabels,
        .inset = inset,
        .corner = corner,
        .titleGap = titleGap,
        .warn = warn,
        .ground = over(panelFill, Qt::white),
        .titleSize = titleSize,
        .rowSize = rowSize,
        .rowGap = rowGap,
        .smallNumber = smallNumber,
        .accent2 = accent2,
        .accent3 = accent3,
        .clockCap = clockCap,
        .heroCap = heroCap,
        .temperatureCap = temperatureCap,
        .rateCap = 26,
    };
}

} // namespace ambrelle
